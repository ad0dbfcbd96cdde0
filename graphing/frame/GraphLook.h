#pragma once

#include "platform/screens/Color.h"

namespace velmora {

/// Colours and sizes of a frame of the graph.
struct GraphLook {
    bool isBlack = false; ///< the background; white otherwise
    bool isWide = false;  ///< the view has room for larger numbers and wider lines

    Color backgroundColor() const { return Color::white(isBlack ? 0 : 1); }
    Color axisColor() const { return Color::white(isBlack ? 1 : 0); }
    Color hashmarkColor() const { return axisColor(); }
    /// Also that of the trace line.
    Color gridlineColor() const {
        constexpr double alphaOnWhite = 0.2;
        constexpr double alphaOnBlack = 0.3;
        return isBlack ? Color::white(1, alphaOnBlack) : Color::white(0, alphaOnWhite);
    }
    /// Of axes, ticks and curves, in points.
    double axisWidth() const { return isWide ? 2 : 1; }

    bool operator==(const GraphLook&) const = default;
};

} // namespace velmora
