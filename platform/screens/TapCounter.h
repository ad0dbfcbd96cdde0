#pragma once

#include "platform/screens/Geometry.h"

namespace velmora {

/// Counts taps in a row: touches that come soon after the last one has gone, near it, and do not move.
class TapCounter {
public:
    /// The number of the tap that begins there; times are seconds of any clock that never goes back.
    int touchBegan(Point location, double time);
    /// The number of the tap that ends; 0 for a touch that has moved or rested too long to be a tap.
    int touchEnded(Point location, double time);
    /// More than one finger is on the screen: none of it is a tap.
    void cancel() { m_count = 0; }

private:
    int m_count = 0;
    Point m_began;
    double m_lastTime = 0;
};

} // namespace velmora
