#pragma once

#include "platform/screens/Color.h"
#include "platform/screens/Geometry.h"

namespace velmora {

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
    virtual void moveTo(Point point) = 0;
    virtual void lineTo(Point point) = 0;
    virtual void strokePath() = 0;
    /// The ellipse that touches the sides of the rectangle.
    virtual void strokeEllipse(const Rect& rect) = 0;
    virtual void fillEllipse(const Rect& rect) = 0;
    virtual void fillRect(const Rect& rect) = 0;
};

} // namespace velmora
