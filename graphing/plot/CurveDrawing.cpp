#include "graphing/plot/CurveDrawing.h"

namespace velmora {

CurveDrawing::CurveDrawing(Size area, const DevicePixels& pixels) : m_area(area), m_pixels(pixels) {}

CurveCoverage& CurveDrawing::coverage() {
    if (!m_coverage) {
        m_coverage = std::make_unique<CurveCoverage>(m_area, m_pixels);
    }
    return *m_coverage;
}

void CurveDrawing::clear() {
    m_lines = {};
    m_coverage.reset();
}

void CurveDrawing::moveTo(Point point) {
    m_pen = point;
    if (!hasPixels()) {
        m_lines.moveTo(point);
    }
}

void CurveDrawing::lineTo(Point point) {
    if (hasPixels()) {
        coverage().addLine(m_pen, point);
        m_pen = point;
    } else {
        m_lines.lineTo(point);
    }
}

bool CurveDrawing::addToGap(std::size_t gap, Point from, Point to) {
    if (hasPixels()) {
        return coverage().addLine(from, to) > 0;
    }
    m_lines.gap(gap).push_back({from, to});
    return true;
}

void CurveDrawing::draw(DrawingContext& context) const {
    if (m_coverage) {
        context.fillCoverage(m_coverage->pixels());
    } else {
        m_lines.draw(context);
    }
}

} // namespace velmora
