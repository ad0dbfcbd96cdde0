#pragma once

#include <QLineF>
#include <QList>

class QPainter;
class QPen;

namespace velmora {

/// Separate lines of one look, gathered to be painted at once and fast by Qt's rasterizer. Lengths are in
/// points; the painter scales them, without turning.
class LineRun {
public:
    bool isEmpty() const { return m_lines.isEmpty(); }
    void append(const QList<QLineF>& lines) { m_lines.append(lines); }
    /// Paints the lines and forgets them.
    void paint(QPainter& painter, const QPen& pen);

private:
    struct Device;

    QList<QLineF> inPieces(const Device& device) const;

    QList<QLineF> m_lines;
};

} // namespace velmora
