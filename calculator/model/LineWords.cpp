#include "calculator/model/LineWords.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

using enum LineWord::Kind;

constexpr std::array kWords{
    LineWord{"+", Sign, "", "plus"},
    LineWord{"-", Sign, "", "minus"},
    LineWord{"*", Sign, "", "times"},
    LineWord{"/", Sign, "", "divided by"},
    LineWord{"^", Sign, "", "to the power of"},
    LineWord{".", Sign, "", "decimal point"},
    LineWord{"(", Sign, "", "left parenthesis"},
    LineWord{")", Sign, "", "right parenthesis"},
    LineWord{"=", Sign, "", "equals"},
    LineWord{"=)", Sign, "", "equals"}, // the tall key's face while the line is empty
    LineWord{"<", Sign, "", "less than"},
    LineWord{">", Sign, "", "greater than"},
    LineWord{"≥", Sign, "", "greater than or equal"},
    LineWord{"≤", Sign, "", "less than or equal"},
    LineWord{"e", Value, "", "e"},
    LineWord{"E", Value, "", "exponent of ten"},
    LineWord{"π", Value, "pi", "pi"},
    LineWord{"i", Value, "", "imaginary unit"},
    LineWord{"x", Variable, "", "x"},
    LineWord{"y", Variable, "", "y"},
    LineWord{"t", Variable, "", "t"},
    LineWord{"θ", Variable, "theta", "theta"},
    LineWord{kLastAnswer, LastAnswer, "", "last answer"},
    LineWord{"N", Internal, "", ""},
};

} // namespace

std::span<const LineWord> lineWords() { return kWords; }

const LineWord* lineWord(std::string_view token) {
    const auto* found = std::ranges::find(kWords, token, &LineWord::token);
    return found == kWords.end() ? nullptr : found;
}

bool isLineWord(std::string_view text) {
    return std::ranges::any_of(kWords, [&](const LineWord& word) {
        return !text.empty() && (spells(text, word.token) || spells(text, word.spelling));
    });
}

bool spells(std::string_view typed, std::string_view word) {
    return word.size() == 1 ? typed == word : isSameInAnyCase(typed, word);
}

bool isSameInAnyCase(std::string_view one, std::string_view other) {
    const auto lowerCase = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    return std::ranges::equal(one, other, {}, lowerCase, lowerCase);
}

} // namespace velmora
