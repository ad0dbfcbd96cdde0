#pragma once

#include <string>
#include <string_view>

namespace velmora {

struct EditingMode;

/// One character a key, in the order in which keys are dealt to the grids. Empty (no keys) for a geometry
/// outside 0 to 4 or a mode without keys.
std::string_view keyboardLayoutString(int geometry, const EditingMode& mode, int whichKeyboard);

/// What adjusts a layout string to the screen at hand.
struct LayoutAdjustment {
    int geometry;
    const EditingMode& mode;
    bool iOnMainKeyboard;
    std::string variableName; ///< of the edited list; empty when it has none
};

/// The string with its "x" replaced by the variable (wide, mode 1; a blank where there is none) and without
/// "i": the imaginary unit is never a key of its own, it shares the point's key on narrow keyboards.
std::string adjustedLayoutString(std::string_view layout, const LayoutAdjustment& adjustment);

/// The letter of the colour class of a key by its character. A character that the mode's table does not
/// hold is a programming fault and has class "a".
std::string colourClass(std::string_view character, const EditingMode& mode);

} // namespace velmora
