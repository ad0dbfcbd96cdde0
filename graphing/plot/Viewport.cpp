#include "graphing/plot/Viewport.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kSmallestHalfWidth = 1e-10; // of the centre: what doubles still resolve

bool isRange(double minimum, double maximum) {
    return std::isfinite(minimum) && std::isfinite(maximum) && std::isfinite(maximum - minimum) &&
           maximum > minimum;
}

double halfWidth(double centre, double maximum, double factor) {
    return std::max((maximum - centre) * factor, std::fabs(centre) * kSmallestHalfWidth);
}

void zoomRange(double& minimum, double& maximum, double factor) {
    const double centre = (minimum + maximum) * 0.5;
    const double half = halfWidth(centre, maximum, factor);
    maximum = centre + half;
    minimum = centre - half;
}

void zoomRangeAbout(double& minimum, double& maximum, double fixed, double factor) {
    const double least = 2 * kSmallestHalfWidth * std::fabs(fixed);
    if (factor < 1 && (maximum - minimum) * factor < least) {
        return;
    }
    maximum = fixed + (maximum - fixed) * factor;
    minimum = fixed + (minimum - fixed) * factor;
}

} // namespace

bool Viewport::isUsable() const {
    return isRange(xMin, xMax) && isRange(yMin, yMax) && width > 0 && height > 0;
}

float Viewport::screenCoordWithCoord(double value, bool isY) const {
    if (isY) {
        return static_cast<float>(height - (value - yMin) * height / (yMax - yMin));
    }
    return static_cast<float>((value - xMin) * width / (xMax - xMin));
}

double Viewport::coordXWithScreenX(double screenX) const { return xMin + (xMax - xMin) * screenX / width; }

double Viewport::coordYWithScreenY(double distance) const { return yMin + (yMax - yMin) * distance / height; }

bool Viewport::adopt(const Viewport& changed) {
    if (!changed.isUsable()) {
        return false;
    }
    *this = changed;
    return true;
}

bool Viewport::move(float dx, float dy) {
    Viewport moved = *this;
    // The products are formed in single precision, like the screen's own coordinates.
    const float shiftX = static_cast<float>(xMax - xMin) * dx / static_cast<float>(width);
    const float shiftY = static_cast<float>(yMax - yMin) * dy / static_cast<float>(height);
    moved.xMin += shiftX;
    moved.xMax += shiftX;
    moved.yMin += shiftY;
    moved.yMax += shiftY;
    return adopt(moved);
}

bool Viewport::zoom(double factorX, double factorY) {
    Viewport zoomed = *this;
    zoomRange(zoomed.xMin, zoomed.xMax, factorX);
    zoomRange(zoomed.yMin, zoomed.yMax, factorY);
    return adopt(zoomed);
}

bool Viewport::zoomAbout(Point point, double factorX, double factorY) {
    Viewport zoomed = *this;
    zoomRangeAbout(zoomed.xMin, zoomed.xMax, coordXWithScreenX(point.x), factorX);
    zoomRangeAbout(zoomed.yMin, zoomed.yMax, coordYWithScreenY(height - point.y), factorY);
    return adopt(zoomed);
}

} // namespace velmora
