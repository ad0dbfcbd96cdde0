#pragma once

#include "calculator/model/Entering.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class ExpressionList;

/// What the tall key does with the line once no parenthesis is open.
enum class TallKeyAction : unsigned char { AppendsToHistory, StoresEquation, StoresInequality };

/// A mode of the keyboard screen: all that differs between editing the calculator's line, the equations of
/// each kind and the inequalities.
struct EditingMode {
    int entering = 0; ///< the mode's number, see Entering.h
    TallKeyAction tallKey = TallKeyAction::StoresEquation;
    bool namesSlot = false;    ///< whether "y1(x)=" leads the line
    bool showsHeights = false; ///< whether the heights of the level curves end it
    bool hasSmallEntryLine = false;
    std::string_view keyVariable = "x";   ///< on the keys, where no list is edited that names its own
    std::string_view variables{};         ///< those of the line, where the edited list does not say
    bool listNamesVariables = false;      ///< whether the edited list says
    bool variableSharesKeyOfPi = false;   ///< on narrow keyboards
    bool functionsMayUseVariable = false; ///< whether the list of functions is told of a variable

    // The keys, one character each; see KeyboardLayoutStrings.h.
    std::string_view wideLayout{};
    std::string_view narrowLayout{};
    std::string_view otherNarrowLayout{}; ///< the other of the two narrow arrangements
    std::string_view pairing{};           ///< each key's character, then the letter of its colour class
    int wideLeftColumns = 4;
    int narrowRows = 6;
    int narrowRowsOfTallKey = 2;

    /// The calculator's own line, which has the history above it and continues the last answer.
    bool isCalculator() const { return tallKey == TallKeyAction::AppendsToHistory; }
};

/// The row of a mode. A number outside 0 to 5 has a row without keys that stores equations.
const EditingMode& editingMode(int entering);

/// The variable on the keys: the mode's own or that of the edited list, which may have none (empty text).
std::string keyVariable(const EditingMode& mode, const ExpressionList* target);

/// The variables that a line of this mode may hold.
std::vector<std::string> variablesOfLine(const EditingMode& mode, const ExpressionList* target);

} // namespace velmora
