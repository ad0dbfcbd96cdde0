#pragma once

#include "platform/screens/Geometry.h"

namespace velmora {

/// The visible part of the plane and the points of the screen that show it. Screen y grows downward.
struct Viewport {
    double xMin = -10;
    double xMax = 10;
    double yMin = -10;
    double yMax = 10;
    int width = 0; ///< in whole points
    int height = 0;

    /// Whether both ranges are finite and have a width; otherwise nothing can be drawn.
    bool isUsable() const;

    // Mapping. Screen coordinates are single precision, as the drawing layer takes them.

    float screenCoordWithCoord(double value, bool isY) const;
    double coordXWithScreenX(double screenX) const;
    /// The distance is measured upward from the lower edge.
    double coordYWithScreenY(double distance) const;

    // Changes. One that would make a bound infinite, or a range too narrow to be told from none, changes
    // nothing and gives false.

    /// Shifts the view by so many points, x to the right and y upward.
    bool move(float dx, float dy);
    /// Makes the ranges so many times as wide, about their centres. A half-width never falls below
    /// 1e-10 of the centre's size.
    bool zoom(double factorX, double factorY);
    /// The same about a point of the screen, which stays where it is.
    bool zoomAbout(Point point, double factorX, double factorY);

    bool operator==(const Viewport&) const = default;

private:
    bool adopt(const Viewport& changed);
};

} // namespace velmora
