#pragma once

#include "platform/screens/Geometry.h"

#include <array>
#include <vector>

namespace velmora {

/// Where everything stands on the unit converter's screen, in points of its view.
struct UnitConvertLayout {
    /// What all measures are multiplied by: 1 on a phone, more where there is room.
    double scale = 1;
    Rect leftSideLabel;
    Rect rightSideLabel;
    Rect faultLabel; ///< what is wrong with the number typed
    Rect swapButton;
    std::array<Rect, 3> wheels;
    double wheelRowHeight = 0;
    std::vector<Rect> keys; ///< in the order of unitConvertKeys()
};

/// Lays the screen out for a view of that size: all below each other, or, in a wide view, the keypad at the
/// right. The wheels show an odd number of rows, as many as leave the keys large enough for a finger.
UnitConvertLayout unitConvertLayout(Size view);

} // namespace velmora
