#pragma once

#include "calculator/keyboard/Button.h"
#include "platform/screens/Color.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

class KeyboardViewController;

/// How a key looks; all of it follows from the layout and the geometry.
struct KeyAppearance {
    bool shown = false;              ///< blank cells have a key that is not shown
    std::string colourClass;         ///< one letter: a operators, b digits, c equals, f lists, …
    std::string backgroundImageName; ///< "button" and the class, on a tablet with "@2x"
    std::string fontName;
    double fontSize = 0; ///< points
    Color titleColor = Color::white(1);
    std::string accessibleName; ///< what a screen reader says
    bool repeats = false;       ///< acts again and again while a finger rests on it
    bool chosen = false;        ///< looks pressed: the sign in force of an inequality
    bool operator==(const KeyAppearance&) const = default;
};

/// One key. A key with several titles ("e E") replaces what its previous press inserted by its next title.
class CalculatorButton final : public Button, public std::enable_shared_from_this<CalculatorButton> {
public:
    using CustomSelector = void (*)(KeyboardViewController&, CalculatorButton&);

    /// Keys live in shared pointers, for the controller remembers the last two.
    static std::shared_ptr<CalculatorButton> newButton(const Rect& frame);

    const std::vector<std::string>& titleArray() const { return m_titleArray; }
    /// Splits the text at each blank into the titles.
    void setTitleString(const std::string& title) override;
    /// The titles joined by blanks, which is also the visible title.
    std::string titleString() const override;

    int pressCount() const { return m_pressCount; }
    /// Not owned; null makes the key dead.
    void setController(KeyboardViewController* controller) { m_controller = controller; }
    /// An action in place of typing the title, or null.
    void setCustomSelector(CustomSelector selector) { m_customSelector = selector; }
    CustomSelector customSelector() const { return m_customSelector; }

    const KeyAppearance& appearance() const { return m_appearance; }
    void setAppearance(KeyAppearance appearance) { m_appearance = std::move(appearance); }
    void setBackgroundImageName(std::string name) { m_appearance.backgroundImageName = std::move(name); }
    void setAccessibleName(std::string name) { m_appearance.accessibleName = std::move(name); }
    void setChosen(bool chosen) { m_appearance.chosen = chosen; }
    bool isShown() const { return m_appearance.shown; }

    /// A touch has ended inside the key. The last title wraps round without taking anything back: a third
    /// press of "e E" adds an "e". Intended, so that "eEe" can be typed.
    void pressed();
    /// Ends the series of presses.
    void reset() { m_pressCount = 0; }
    void sendTextMessageToControllerWithText(const std::string& text);
    void sendDeleteMessageToController();

    explicit CalculatorButton(const Rect& frame) : Button(frame) {}

private:
    std::vector<std::string> m_titleArray;
    int m_pressCount = 0;
    KeyboardViewController* m_controller = nullptr;
    CustomSelector m_customSelector = nullptr;
    KeyAppearance m_appearance;
};

} // namespace velmora
