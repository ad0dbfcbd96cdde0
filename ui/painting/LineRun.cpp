#include "ui/painting/LineRun.h"

#include <QPainter>
#include <QPen>

#include <cmath>

namespace velmora {

/// Where a point lies in pixels, and back.
struct LineRun::Device {
    explicit Device(const QTransform& transform) : scaleY(transform.m22()), originY(transform.dy()) {}

    double row(double y) const { return y * scaleY + originY; }
    double y(double row) const { return (row - originY) / scaleY; }

    double scaleY;
    double originY;
};

void LineRun::paint(QPainter& painter, const QPen& pen) {
    painter.setPen(pen);
    painter.drawLines(inPieces(Device(painter.deviceTransform())));
    m_lines.clear();
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
