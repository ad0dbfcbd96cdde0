#include "tools/units/UnitConvertKeypad.h"

#include "engine/environment/Environment.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

// Digits as on a telephone's calculator, editing at their right, the two ways out in the corner.
constexpr std::array kKeys{
    UnitConvertKey{'1', 0, 2, 1}, UnitConvertKey{'2', 1, 2, 1}, UnitConvertKey{'3', 2, 2, 1},
    UnitConvertKey{'4', 0, 1, 1}, UnitConvertKey{'5', 1, 1, 1}, UnitConvertKey{'6', 2, 1, 1},
    UnitConvertKey{'7', 0, 0, 1}, UnitConvertKey{'8', 1, 0, 1}, UnitConvertKey{'9', 2, 0, 1},
    UnitConvertKey{'0', 0, 3, 2}, UnitConvertKey{'.', 2, 3, 1}, UnitConvertKey{'-', 3, 1, 1},
    UnitConvertKey{'E', 4, 1, 1}, UnitConvertKey{'C', 4, 0, 1}, UnitConvertKey{'D', 3, 0, 1},
    UnitConvertKey{'X', 3, 2, 2}, UnitConvertKey{'O', 3, 3, 2},
};

struct KeyTitle {
    char character;
    const char* title;
    const char* spokenName;
};
constexpr std::array kTitles{
    KeyTitle{'-', "+/-", "change sign"}, KeyTitle{'C', "clr", "clear"},
    KeyTitle{'D', "del", "delete"},      KeyTitle{'O', "OK", "OK"},
    KeyTitle{'X', "Cancel", "Cancel"},   KeyTitle{'S', "Settings", "Settings"},
    KeyTitle{'.', ".", "decimal point"}, KeyTitle{'E', "E", "times ten to the power of"},
};

/// Each character with the letter of its ground behind it.
constexpr std::string_view kGrounds = "0r1b2b3b4b5b6b7b8b9b.bOkXkEa-aDgCg";

} // namespace

std::span<const UnitConvertKey> unitConvertKeys() { return kKeys; }

std::string titleOfUnitConvertKey(char character) {
    const auto* row = std::ranges::find(kTitles, character, &KeyTitle::character);
    return row == kTitles.end() ? std::string(1, character) : row->title;
}

std::string spokenNameOfUnitConvertKey(std::string_view title) {
    const auto* row =
        std::ranges::find_if(kTitles, [&](const KeyTitle& candidate) { return title == candidate.title; });
    return row == kTitles.end() ? std::string(title) : row->spokenName;
}

char backgroundUnicharWithTitleUnichar(char character) {
    for (std::size_t at = 0; at + 1 < kGrounds.size(); at += 2) {
        if (kGrounds[at] == character) {
            return kGrounds[at + 1];
        }
    }
    Environment::current().raiseDebugAlert("problem in method backgroundUnicharWithTitleUnichar");
    return 'a';
}

} // namespace velmora
