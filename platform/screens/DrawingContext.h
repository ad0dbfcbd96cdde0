#pragma once

#include "platform/screens/Color.h"
#include "platform/screens/Geometry.h"

#include <cstdint>

namespace velmora {

/// How much of each pixel something covers, 0 to 255, row by row from the upper left of what is drawn on.
struct PixelCoverage {
    /// The columns of a row that may be covered at all.
    struct Extent {
        int begin;
        int end;
    };
    int columns;
    int rows;
    const std::uint8_t* alpha;
    const Extent* extents; ///< one a row
};

/// What a view draws on: the screen, or a recorder in a test. Lengths are in points.
/// A path is begun by moveTo, grown by lineTo and used up by strokePath.
/// Whoever draws lines with an end that is not finite may expect them to be left out.
class DrawingContext {
public:
    virtual ~DrawingContext() = default;

    virtual void setLineWidth(double width) = 0;
    virtual void setStrokeColor(const Color& color) = 0;
    virtual void setFillColor(const Color& color) = 0;
    /// Whether upright and level lines may move by up to half a pixel to cover whole pixels, as the lines of
    /// a grid should to look alike. They may not at first; a context without pixels need not care.
    virtual void setAlignsToPixels(bool /*aligns*/) {}
    /// How many pixels a point has, for who would rather cover pixels (fillCoverage) than draw lines; 0 in a
    /// context that has no pixels of its own and takes lines only.
    virtual double pixelsPerPoint() const { return 0; }
    /// Lays the fill colour over what is drawn so far, as far as each pixel is covered.
    virtual void fillCoverage(const PixelCoverage& /*coverage*/) {}
    virtual void moveTo(Point point) = 0;
    virtual void lineTo(Point point) = 0;
    virtual void strokePath() = 0;
    /// The ellipse that touches the sides of the rectangle.
    virtual void strokeEllipse(const Rect& rect) = 0;
    virtual void fillEllipse(const Rect& rect) = 0;
    virtual void fillRect(const Rect& rect) = 0;
};

} // namespace velmora
