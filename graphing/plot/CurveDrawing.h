#pragma once

#include "graphing/plot/CurveCoverage.h"
#include "graphing/plot/PlottedCurve.h"

#include <cstddef>
#include <memory>

namespace velmora {

/// What a plotter draws on: every line, as a context without pixels takes them, or the pixels that the lines
/// cover, as a screen does.
class CurveDrawing {
public:
    CurveDrawing(Size area, const DevicePixels& pixels);

    bool hasPixels() const { return m_pixels.isOn(); }
    void moveTo(Point point);
    void lineTo(Point point);
    /// The number of a new gap, whose lines may be drawn later.
    std::size_t addGap() { return hasPixels() ? 0 : m_lines.addGap(); }
    /// False when a line in a gap covers nothing that was not covered.
    bool addToGap(std::size_t gap, Point from, Point to);
    /// Whether no line between two places across could cover anything more.
    bool isFull(double fromX, double toX) const { return m_coverage && m_coverage->isFull(fromX, toX); }
    /// Starts afresh.
    void clear();

    void draw(DrawingContext& context) const;

private:
    CurveCoverage& coverage();

    Size m_area;
    DevicePixels m_pixels;
    PlottedCurve m_lines;
    std::unique_ptr<CurveCoverage> m_coverage; ///< null until something is covered
    Point m_pen;
};

} // namespace velmora
