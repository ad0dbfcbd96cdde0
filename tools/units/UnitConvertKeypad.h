#pragma once

#include <span>
#include <string>
#include <string_view>

namespace velmora {

/// A key of the unit converter's keypad and its place in a grid of kUnitConvertKeyColumns columns.
struct UnitConvertKey {
    char character;
    int column;
    int row;
    int columns; ///< how many it covers
};

inline constexpr int kUnitConvertKeyColumns = 5;
inline constexpr int kUnitConvertKeyRows = 4;

/// The keys in the order "1234567890.-ECDXO".
std::span<const UnitConvertKey> unitConvertKeys();

/// What stands on the key of a character: "clr" for "C"; the character itself where nothing else is stated.
std::string titleOfUnitConvertKey(char character);
/// What a screen reader says for a key with that title.
std::string spokenNameOfUnitConvertKey(std::string_view title);
/// The letter of the key's ground, as the calculator's keys have one. A character that is no key raises a
/// debug alert and gets that of an operator.
char backgroundUnicharWithTitleUnichar(char character);

} // namespace velmora
