#include "ui/painting/LineRun.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace velmora {

/// Where a point lies in pixels, and back.
struct LineRun::Device {
    explicit Device(const QTransform& transform)
        : scaleX(transform.m11()), scaleY(transform.m22()), originX(transform.dx()), originY(transform.dy()) {
    }

    double column(double x) const { return x * scaleX + originX; }
    double row(double y) const { return y * scaleY + originY; }
    double x(double column) const { return (column - originX) / scaleX; }
    double y(double row) const { return (row - originY) / scaleY; }

    double scaleX;
    double scaleY;
    double originX;
    double originY;
};

void LineRun::paint(QPainter& painter, const QPen& pen, bool isOpaque) {
    const Device device(painter.deviceTransform());
    const QList<QRectF> overdrawn = isOpaque ? takeOverdrawn(device, pen.widthF()) : QList<QRectF>();
    painter.setPen(pen);
    painter.drawLines(inPieces(device));
    m_lines.clear();
    if (!overdrawn.isEmpty()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        for (const QRectF& rect : overdrawn) {
            painter.fillRect(rect, pen.color());
        }
        painter.setRenderHint(QPainter::Antialiasing, true);
    }
}

// A curve that swings many times within a pixel has thousands of lines there, which together only fill it.
QList<QRectF> LineRun::takeOverdrawn(const Device& device, double width) {
    constexpr qsizetype few = 2000; // lines that are painted in a moment however they lie
    if (m_lines.size() < few) {
        return {};
    }
    struct Upright {
        int column;
        float top;
        float bottom;
        qsizetype line;
    };
    std::vector<Upright> uprights;
    uprights.reserve(static_cast<std::size_t>(m_lines.size()));
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QLineF& line = m_lines[i];
        if (std::fabs(line.dx()) * device.scaleX <= 1) {
            const double row1 = device.row(line.y1());
            const double row2 = device.row(line.y2());
            uprights.push_back({static_cast<int>(std::floor(device.column(line.center().x()))),
                                static_cast<float>(std::min(row1, row2)),
                                static_cast<float>(std::max(row1, row2)), i});
        }
    }
    std::ranges::sort(uprights, [](const Upright& a, const Upright& b) {
        return a.column != b.column ? a.column < b.column : a.top < b.top;
    });
    const double pixels = std::max(1.0, std::round(width * device.scaleX));
    QList<QRectF> rects;
    for (auto begin = uprights.begin(); begin != uprights.end();) {
        const auto end =
            std::find_if(begin, uprights.end(), [&](const Upright& u) { return u.column != begin->column; });
        // The stretches that the column's lines cover, against the length of all of them.
        double drawn = 0;
        double covered = 0;
        QList<QRectF> stretches;
        float top = begin->top;
        float bottom = begin->bottom;
        const auto finish = [&] {
            covered += bottom - top;
            const double left = begin->column - std::floor(pixels / 2);
            stretches.append(QRectF(QPointF(device.x(left), device.y(std::round(top))),
                                    QPointF(device.x(left + pixels), device.y(std::round(bottom)))));
        };
        for (auto upright = begin; upright != end; ++upright) {
            drawn += upright->bottom - upright->top;
            if (upright->top > bottom) {
                finish();
                top = upright->top;
                bottom = upright->bottom;
            }
            bottom = std::max(bottom, upright->bottom);
        }
        finish();
        constexpr double often = 1.25; // one line through it, in pieces, covers nothing twice
        if (drawn > often * covered) {
            rects.append(stretches);
            for (auto upright = begin; upright != end; ++upright) {
                m_lines[upright->line] = QLineF();
            }
        }
        begin = end;
    }
    m_lines.removeIf([](const QLineF& line) { return line.isNull(); });
    return rects;
}

// Qt paints what covers many rows of pixels with several threads, whose waiting for each other costs twenty
// times the painting of a grid line.
QList<QLineF> LineRun::inPieces(const Device& device) const {
    constexpr double mostRows = 64;
    QList<QLineF> pieces;
    pieces.reserve(m_lines.size());
    for (QLineF rest : m_lines) {
        if (rest.dy() < 0) {
            rest.setPoints(rest.p2(), rest.p1());
        }
        while (rest.dy() * device.scaleY > mostRows) {
            // At the edge of a pixel, so that no row is painted by two pieces.
            const double cut = device.y(std::floor(device.row(rest.y1())) + mostRows);
            const QLineF piece(rest.p1(), rest.pointAt((cut - rest.y1()) / rest.dy()));
            pieces.append(piece);
            rest.setP1(piece.p2());
        }
        pieces.append(rest);
    }
    return pieces;
}

} // namespace velmora
