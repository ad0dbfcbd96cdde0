#pragma once

#include <QColor>

#include <array>

class QPainter;

namespace velmora {

struct Figure;

/// A colour for each FigureColor, in its order.
using FigureColors = std::array<QColor, 5>;

/// Paints a figure, its upper left corner at the painter's origin, in points.
void paintFigure(QPainter& painter, const Figure& figure, const FigureColors& colors);

} // namespace velmora
