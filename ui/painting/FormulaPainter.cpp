#include "ui/painting/FormulaPainter.h"

#include "calculator/pages/FormulaArtwork.h"

#include <QPainter>
#include <QPainterPath>

namespace velmora {

namespace {

constexpr double kThousand = 1000;

QPointF qtPoint(Point point) { return {point.x, point.y}; }

} // namespace

QPainterPath qtPath(const VectorPath& path) {
    QPainterPath result;
    for (const VectorPath::Step& step : path.steps) {
        const auto& [first, second, third] = step.points;
        switch (step.kind) {
        case VectorPath::Step::Kind::Move:
            result.moveTo(qtPoint(first));
            break;
        case VectorPath::Step::Kind::Line:
            result.lineTo(qtPoint(first));
            break;
        case VectorPath::Step::Kind::Quadratic:
            result.quadTo(qtPoint(first), qtPoint(second));
            break;
        case VectorPath::Step::Kind::Cubic:
            result.cubicTo(qtPoint(first), qtPoint(second), qtPoint(third));
            break;
        case VectorPath::Step::Kind::Close:
            result.closeSubpath();
            break;
        }
    }
    result.setFillRule(Qt::WindingFill);
    return result;
}

void paintFormula(QPainter& painter, const FormulaArtwork& formula, GlyphOutlines& outlines,
                  double typeSize) {
    painter.setPen(Qt::NoPen);
    painter.scale(typeSize / kThousand, -typeSize / kThousand);
    painter.translate(0, -formula.ascent);
    for (const FormulaArtwork::Glyph& glyph : formula.glyphs) {
        const VectorPath* outline = outlines.find(glyph.name);
        if (outline == nullptr) {
            continue;
        }
        painter.save();
        if (glyph.visiblePart) {
            const Rect& part = *glyph.visiblePart;
            painter.setClipRect(QRectF(part.x, part.y, part.width, part.height));
        }
        painter.translate(qtPoint(glyph.origin));
        painter.scale(glyph.scaleX, glyph.scaleY);
        painter.drawPath(qtPath(*outline));
        painter.restore();
    }
    for (const Rect& rule : formula.rules) {
        painter.drawRect(QRectF(rule.x, rule.y, rule.width, rule.height));
    }
}

} // namespace velmora
