#pragma once

#include <string>
#include <string_view>

namespace velmora {

class KeyboardViewController;

/// Presses of a hardware keyboard on a keyboard screen. Where a key on screen has the same meaning it is that
/// key that is pressed.
class HardwareKeyboard {
public:
    explicit HardwareKeyboard(KeyboardViewController& controller) : m_controller(controller) {}

    /// A name or the text that the key produces, see HardwareKeys.h. False when it means nothing here, so
    /// that the key can be left to others. A character that cannot be read stays visible in the line.
    bool press(std::string_view key);

private:
    bool pressKeyOfCharacter(const std::string& character);
    void type(const std::string& text);
    void typeLetter(const std::string& letter);
    void typeBlank();
    void typePower(const std::string& exponent);
    void typeFactorial(const std::string& sign);

    KeyboardViewController& m_controller;
};

} // namespace velmora
