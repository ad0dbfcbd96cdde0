#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// What a key of a hardware keyboard means on a keyboard screen.
enum class HardwareAction : unsigned char {
    None,    ///< nothing here; the key is left to others
    Type,    ///< types `text`
    TallKey, ///< the key that closes a parenthesis, evaluates or saves
    Delete,
    DeleteForward, ///< deletes the token after the cursor
    Clear,
    Left,
    Right,
    Home,
    End,
};

struct HardwareKey {
    HardwareAction action = HardwareAction::None;
    std::string text; ///< for Type, as the keys on screen spell it
};

/// Reads a named key ("Enter", "Return", "Backspace", "Delete", "Escape", "Left", "Right", "Home", "End") or
/// the text that a key produces: digits, operators (also "×", "÷", "−"), ".", "(", ")", ",", "=", the signs
/// of inequality, "e", "E", "i", "π" (also "p"), and the letters x, y, t, θ. Whether a letter is a variable
/// of the edited line, and a sign of use there, is for the controller to say.
HardwareKey hardwareKeyWithText(std::string_view text);

} // namespace velmora
