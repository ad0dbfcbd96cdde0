#include "ui/painting/QtDrawingContext.h"

#include "ui/adapters/QtConversions.h"

#include <QPainter>

#include <cmath>
#include <optional>

namespace velmora {

namespace {

bool isFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

/// The part of the line from a to b that lies within the bounds (Liang and Barsky, 1984); nothing when none
/// does. The rasterizer's own clipping loses lines whose ends lie very far away.
std::optional<QLineF> clipped(Point a, Point b, const Rect& bounds) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    double enter = 0;
    double leave = 1;
    const auto cut = [&](double speed, double distance) {
        if (speed == 0) {
            return distance >= 0;
        }
        const double when = distance / speed;
        if (speed < 0) {
            enter = std::max(enter, when);
        } else {
            leave = std::min(leave, when);
        }
        return enter <= leave;
    };
    if (!cut(-dx, a.x - bounds.x) || !cut(dx, bounds.x + bounds.width - a.x) || !cut(-dy, a.y - bounds.y) ||
        !cut(dy, bounds.y + bounds.height - a.y)) {
        return std::nullopt;
    }
    return QLineF(a.x + enter * dx, a.y + enter * dy, a.x + leave * dx, a.y + leave * dy);
}

} // namespace

QtDrawingContext::QtDrawingContext(QPainter& painter, const Rect& bounds)
    : m_painter(painter), m_bounds(bounds) {
    m_painter.setRenderHint(QPainter::Antialiasing);
}

QtDrawingContext::~QtDrawingContext() { flush(); }

void QtDrawingContext::setLineWidth(double width) { m_lineWidth = width; }

void QtDrawingContext::setStrokeColor(const Color& color) { m_strokeColor = color; }

void QtDrawingContext::setFillColor(const Color& color) { m_fillColor = color; }

void QtDrawingContext::moveTo(Point point) {
    m_pen = point;
    m_penIsDown = isFinite(point);
}

void QtDrawingContext::lineTo(Point point) {
    if (m_penIsDown && isFinite(point)) {
        const Rect reach{m_bounds.x - m_lineWidth, m_bounds.y - m_lineWidth, m_bounds.width + 2 * m_lineWidth,
                         m_bounds.height + 2 * m_lineWidth};
        if (const auto line = clipped(m_pen, point, reach)) {
            m_lines.append(*line);
        }
    }
    moveTo(point);
}

/// An upright or level line that lies between two pixels moves to the nearest.
void QtDrawingContext::snapToPixels(QLineF& line, double& width) const {
    const bool upright = line.x1() == line.x2();
    if (upright == (line.y1() == line.y2())) {
        return;
    }
    const QTransform& device = m_painter.deviceTransform();
    const double scale = upright ? device.m11() : device.m22();
    const double origin = upright ? device.dx() : device.dy();
    const double pixels = std::max(1.0, std::round(width * scale));
    const double centre = (upright ? line.x1() : line.y1()) * scale + origin;
    const double snapped = (std::round(centre - pixels / 2) + pixels / 2 - origin) / scale;
    line.translate(upright ? snapped - line.x1() : 0, upright ? 0 : snapped - line.y1());
    width = pixels / scale;
}

void QtDrawingContext::strokePath() {
    if (m_alignsToPixels && m_lines.size() == 1) {
        double width = m_lineWidth;
        snapToPixels(m_lines.front(), width);
        setPen(width);
    } else {
        setPen(m_lineWidth);
    }
    m_run.append(m_lines);
    m_lines.clear();
    m_penIsDown = false;
}

/// Lines of one look are painted together: changing the pen for each costs as much as painting it.
void QtDrawingContext::setPen(double width) {
    if (width != m_penWidth || m_strokeColor != m_penColor) {
        flush();
        m_penWidth = width;
        m_penColor = m_strokeColor;
    }
}

void QtDrawingContext::flush() {
    if (m_run.isEmpty()) {
        return;
    }
    // Opaque lines meet with square ends, which closes the corners between them; lines that shine
    // through stay flat, or they would be darker where they overlap.
    const Qt::PenCapStyle cap = m_penColor.alpha < 1 ? Qt::FlatCap : Qt::SquareCap;
    m_run.paint(m_painter, QPen(toQColor(m_penColor), m_penWidth, Qt::SolidLine, cap), m_penColor.alpha >= 1);
}

void QtDrawingContext::strokeEllipse(const Rect& rect) {
    flush();
    m_painter.setPen(QPen(toQColor(m_strokeColor), m_lineWidth));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawEllipse(toQRectF(rect));
}

void QtDrawingContext::fillEllipse(const Rect& rect) {
    flush();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(toQColor(m_fillColor));
    m_painter.drawEllipse(toQRectF(rect));
}

void QtDrawingContext::fillRect(const Rect& rect) {
    flush();
    m_painter.fillRect(toQRectF(rect), toQColor(m_fillColor));
}

} // namespace velmora
