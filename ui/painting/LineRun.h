#pragma once

#include <QLineF>
#include <QList>
#include <QRectF>

class QPainter;
class QPen;

namespace velmora {

/// Separate lines of one look, gathered to be painted at once and fast by Qt's rasterizer. Lengths are in
/// points; the painter scales them, without turning.
class LineRun {
public:
    bool isEmpty() const { return m_lines.isEmpty(); }
    void append(const QList<QLineF>& lines) { m_lines.append(lines); }
    /// Paints the lines and forgets them. `isOpaque`: the pen covers what lies below it.
    void paint(QPainter& painter, const QPen& pen, bool isOpaque);

private:
    struct Device;

    /// Takes the lines out that lie upon one another in a column of pixels, and gives the rectangles that
    /// they cover together.
    QList<QRectF> takeOverdrawn(const Device& device, double width);
    QList<QLineF> inPieces(const Device& device) const;

    QList<QLineF> m_lines;
};

} // namespace velmora
