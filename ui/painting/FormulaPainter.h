#pragma once

class QPainter;
class QPainterPath;

namespace velmora {

class GlyphOutlines;
struct FormulaArtwork;
struct VectorPath;

/// Paints a formula with the painter's brush. Its upper left corner is the painter's origin, its type size
/// in points is given.
void paintFormula(QPainter& painter, const FormulaArtwork& formula, GlyphOutlines& outlines, double typeSize);

QPainterPath qtPath(const VectorPath& path);

} // namespace velmora
