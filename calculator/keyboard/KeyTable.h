#pragma once

#include "calculator/keyboard/CalculatorButton.h"

#include <string>
#include <string_view>

namespace velmora {

/// What a character of a layout string makes of its key.
struct KeyRow {
    std::string_view character;
    std::string_view title;                  ///< the face; alternatives are separated by a blank
    CalculatorButton::CustomSelector action; ///< null: the key types its title
    std::string_view accessibleName;
    bool repeats = false; ///< while a finger rests on it
};

/// The row of a character; a character without a row shows, types and is called by itself.
KeyRow keyRow(std::string_view character);

/// The spoken name of a text on a key or typed by one: "theta" for "θ", the text itself without a name.
std::string accessibleName(std::string_view text);

} // namespace velmora
