#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// What a key of a hardware keyboard means on a keyboard screen.
enum class HardwareAction : unsigned char {
    None,   ///< nothing here; the key is left to others
    Type,   ///< types `text`
    Letter, ///< types `text` as a part of a name
    Blank,  ///< parts what stands before it from what follows
    Power,  ///< types "^" and `text`
    Factorial,
    TallKey, ///< the key that closes a parenthesis, evaluates or saves
    Delete,
    DeleteForward, ///< deletes the token after the cursor
    Clear,         ///< empties the line; unlike the key on screen it never reaches the history
    Left,
    Right,
    Home,
    End,
    Earlier, ///< the line of the history before the one shown, for editing
    Later,
};

struct HardwareKey {
    HardwareAction action = HardwareAction::None;
    std::string text; ///< for Type and Letter, as the keys on screen spell it
};

/// Reads a named key ("Enter", "Return", "Backspace", "Delete", "Escape", "Left", "Right", "Up", "Down",
/// "Home", "End") or the text that a key produces: digits, operators (also "×", "÷", "−", "√", "²", "!"),
/// ".", "(", ")", ",", "=", the signs of inequality and "π"; any other character is a letter of a name.
/// Which names there are, and whether a sign is of use in the edited line, is for the controller to say.
HardwareKey hardwareKeyWithText(std::string_view text);

} // namespace velmora
