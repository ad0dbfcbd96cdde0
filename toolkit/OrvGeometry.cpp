#include "toolkit/OrvGeometry.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// Start and length of what two insets leave of a span; nothing at the middle where they overlap.
std::pair<double, double> insetSpan(double start, double length, double before, double after) {
    const double left = length - before - after;
    return left >= 0 ? std::pair(start + before, left) : std::pair(start + before + left / 2, 0.0);
}

double keptWithinSpan(double outerStart, double outerLength, double start, double length) {
    return std::max(outerStart, std::min(start, outerStart + outerLength - length));
}

} // namespace

bool contains(const Rect& rect, Point point) {
    return point.x >= leftEdge(rect) && point.x < rightEdge(rect) && point.y >= topEdge(rect) &&
           point.y < bottomEdge(rect);
}

bool intersects(const Rect& first, const Rect& second) {
    const Rect shared = intersection(first, second);
    return shared.width > 0 && shared.height > 0;
}

Rect intersection(const Rect& first, const Rect& second) {
    const double left = std::max(leftEdge(first), leftEdge(second));
    const double top = std::max(topEdge(first), topEdge(second));
    const double width = std::min(rightEdge(first), rightEdge(second)) - left;
    const double height = std::min(bottomEdge(first), bottomEdge(second)) - top;
    return width > 0 && height > 0 ? Rect{left, top, width, height} : Rect{};
}

Rect inset(const Rect& rect, const OrvInsets& insets) {
    const auto [x, width] = insetSpan(rect.x, rect.width, insets.left, insets.right);
    const auto [y, height] = insetSpan(rect.y, rect.height, insets.top, insets.bottom);
    return {x, y, width, height};
}

Rect inset(const Rect& rect, double horizontal, double vertical) {
    return inset(rect, OrvInsets{vertical, horizontal, vertical, horizontal});
}

Rect centredAt(Point point, Size size) {
    return {point.x - size.width / 2, point.y - size.height / 2, size.width, size.height};
}

Rect centredIn(const Rect& outer, Size size) { return centredAt(centre(outer), size); }

double scaleToFit(Size content, Size bounds) {
    const bool haveArea = content.width > 0 && content.height > 0 && bounds.width > 0 && bounds.height > 0;
    return haveArea ? std::min(bounds.width / content.width, bounds.height / content.height) : 0;
}

Rect fittedIn(const Rect& outer, Size content) {
    const double scale = scaleToFit(content, {outer.width, outer.height});
    return centredIn(outer, {content.width * scale, content.height * scale});
}

Rect keptWithin(const Rect& outer, const Rect& rect) {
    return {keptWithinSpan(outer.x, outer.width, rect.x, rect.width),
            keptWithinSpan(outer.y, outer.height, rect.y, rect.height), rect.width, rect.height};
}

} // namespace velmora
