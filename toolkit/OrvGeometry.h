#pragma once

#include "platform/screens/Geometry.h"

namespace velmora {

/// Distances from the four sides of a rectangle, inwards where positive.
struct OrvInsets {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;
    bool operator==(const OrvInsets&) const = default;
};

// Edges and centre.
constexpr double leftEdge(const Rect& rect) { return rect.x; }
constexpr double rightEdge(const Rect& rect) { return rect.x + rect.width; }
constexpr double topEdge(const Rect& rect) { return rect.y; }
constexpr double bottomEdge(const Rect& rect) { return rect.y + rect.height; }
constexpr Point centre(const Rect& rect) { return {rect.x + rect.width / 2, rect.y + rect.height / 2}; }
constexpr Rect makeRect(Point origin, Size size) { return {origin.x, origin.y, size.width, size.height}; }

/// Whether the point lies inside; the left and upper sides belong to the rectangle, the others do not, so
/// that of two adjoining rectangles exactly one holds a point.
bool contains(const Rect& rect, Point point);

/// Whether the rectangles share an area.
bool intersects(const Rect& first, const Rect& second);

/// The shared area; an empty rectangle at the origin when there is none.
Rect intersection(const Rect& first, const Rect& second);

/// The rectangle made smaller by the insets. Where they leave nothing, the width or height is 0 at the
/// middle of what they would have left.
Rect inset(const Rect& rect, const OrvInsets& insets);
Rect inset(const Rect& rect, double horizontal, double vertical);

constexpr Rect offset(const Rect& rect, double x, double y) {
    return {rect.x + x, rect.y + y, rect.width, rect.height};
}

/// A rectangle of that size whose centre is the point, or the centre of the outer rectangle.
Rect centredAt(Point point, Size size);
Rect centredIn(const Rect& outer, Size size);

/// The factor by which content is scaled to just fit into the bounds at its own proportions; 0 when
/// either has no area.
double scaleToFit(Size content, Size bounds);

/// Content scaled to just fit and centred in the outer rectangle.
Rect fittedIn(const Rect& outer, Size content);

/// The rectangle moved, not resized, so that it lies within the outer one; where it is too large for that
/// its left or upper side stays in view.
Rect keptWithin(const Rect& outer, const Rect& rect);

} // namespace velmora
