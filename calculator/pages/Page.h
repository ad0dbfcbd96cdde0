#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A letter of a formula that is no variable of a line: what it is called, and what it means.
struct FormulaLetter {
    std::string name;    ///< "r", "v_0"
    std::string meaning; ///< "radius"; may be empty
};

/// What a page consists of, from the top.
struct PageItem {
    enum class Kind : unsigned char {
        Text,
        Heading,
        Figure,  ///< the text is the figure's name
        Formula, ///< the text is TeX
        Keys,    ///< the text is keys to press, with blanks between them
        Action,  ///< a button: the text is the name of what it does
    };

    Kind kind = Kind::Text;
    std::string text;
    std::string spoken{};                 ///< of a formula, in place of what its signs say
    std::string insertion{};              ///< of a formula: what can be put into a line
    std::vector<FormulaLetter> letters{}; ///< of a formula: what that asks for
    std::string shown{};                  ///< of keys: the result
    std::vector<std::string> checks{};    ///< of a formula: what must hold, see FormulaFactsTest.cpp
    std::string given{};                  ///< of a formula: why there is nothing to check
};

/// A page of text, formulas and figures to read. It stands in the resource "NAME.page", one line an item:
///
///     title Quadratic equations
///     search parabola, second degree       further words to find the page by
///     heading The formula
///     text Every quadratic equation …
///     figure Parabola                      a drawing of its own, see Figure.h
///     formula x_1=\frac{-b+\sqrt{b^2-4ac}}{2a}
///     insert (-b+sqrt(b^2-4*a*c))/(2*a)    what the button beside it puts into a line
///     letter a coefficient of x²           how the form calls a letter that it asks for
///     check pi*r^2 = int(x,0,r,2*pi*x)     what must hold of it
///     given a definition                   or why there is nothing to check
///     keys 2 * ( 3 + 4 ) =                 keys to press
///     shows 14                             and the result
///
/// A line that begins with a blank goes on with the one before. What cannot be read is logged and left out.
struct Page {
    std::string title;
    std::string searchWords;
    std::vector<PageItem> items;
};

Page pageWithText(std::string_view text);
/// The page of that name; one without title and items, logged, when there is none.
Page loadPage(const std::string& name);

/// The names of all pages, in alphabetical order.
std::vector<std::string> pageNames();

} // namespace velmora
