#include "ui/painting/QtDrawingContext.h"

#include "ui/adapters/QtConversions.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
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

/// The picture that is painted on; null for another kind of device or of pixels.
QImage* pictureOf(const QPainter& painter) {
    auto* picture = dynamic_cast<QImage*>(painter.device());
    return picture && picture->format() == QImage::Format_RGB32 ? picture : nullptr;
}

/// Most of a row is not covered at all, or wholly: eight pixels of either kind are dealt with at once.
void blendRow(QRgb* pixels, const std::uint8_t* alpha, int begin, int end, QRgb color) {
    constexpr int block = 8;
    constexpr std::uint64_t nothing = 0;
    constexpr std::uint64_t everything = ~nothing;
    constexpr unsigned whole = 255;
    for (int i = begin; i < end;) {
        if (i + block <= end) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, alpha + i, sizeof eight);
            if (eight == nothing || eight == everything) {
                if (eight == everything) {
                    std::fill_n(pixels + i, block, color);
                }
                i += block;
                continue;
            }
        }
        const int stop = std::min(i + block, end);
        for (; i < stop; ++i) {
            const unsigned cover = alpha[i];
            const auto mixed = [&](int shift) {
                const unsigned over = (color >> shift) & whole;
                const unsigned below = (pixels[i] >> shift) & whole;
                return ((over * cover + below * (whole - cover) + whole / 2) / whole) << shift;
            };
            pixels[i] = 0xff000000U | mixed(16) | mixed(8) | mixed(0);
        }
    }
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

double QtDrawingContext::pixelsPerPoint() const {
    const QImage* picture = pictureOf(m_painter);
    const QTransform& device = m_painter.deviceTransform();
    const bool isPlain = device.type() <= QTransform::TxScale && device.m11() == device.m22() &&
                         device.dx() == 0 && device.dy() == 0;
    return picture && isPlain ? device.m11() : 0;
}

void QtDrawingContext::fillCoverage(const PixelCoverage& coverage) {
    flush();
    QImage* picture = pictureOf(m_painter);
    if (!picture) {
        return;
    }
    const QRgb color = toQColor(m_fillColor).rgb();
    const int rows = std::min(coverage.rows, picture->height());
    for (int row = 0; row < rows; ++row) {
        const auto& [begin, end] = coverage.extents[row];
        auto* pixels = reinterpret_cast<QRgb*>(picture->scanLine(row)); // a picture of four bytes a pixel
        blendRow(pixels, coverage.alpha + std::size_t(row) * std::size_t(coverage.columns), begin,
                 std::min(end, picture->width()), color);
    }
}

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
    m_run.paint(m_painter, QPen(toQColor(m_penColor), m_penWidth, Qt::SolidLine, Qt::FlatCap));
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
