#include "ui/painting/Hairline.h"

#include "ui/painting/PixelSnappedNode.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

#include <cmath>

namespace velmora {

namespace {

/// The pixels from the rounded start to the rounded end of a length, or the one at either of its ends. What
/// fills a length without smoothing covers just these pixels, so a line never lies beside its row.
struct Span {
    double start;
    double end;
};

Span wholePixels(double start, double end) { return {std::round(start), std::round(end)}; }

Span onePixel(double start, double end, bool atStart) {
    return atStart ? Span{std::round(start), std::round(start) + 1}
                   : Span{std::round(end) - 1, std::round(end)};
}

class HairlineNode final : public PixelSnappedNode {
public:
    explicit HairlineNode(QSGRectangleNode* line) : m_line(line) {
        line->setFlag(OwnedByParent);
        appendChildNode(line);
    }

    void setLine(QSizeF size, bool atTop, const QColor& color) {
        m_size = size;
        m_atTop = atTop;
        if (m_line->color() != color) {
            m_line->setColor(color);
        }
    }

protected:
    void placeOn(const Pixels& pixels) override {
        const bool upright = m_size.height() > m_size.width();
        const double left = pixels.origin.x();
        const double right = left + m_size.width() * pixels.perUnitAcross;
        const double top = pixels.origin.y();
        const double bottom = top + m_size.height() * pixels.perUnitDown;
        const Span across = upright ? onePixel(left, right, m_atTop) : wholePixels(left, right);
        const Span down = upright ? wholePixels(top, bottom) : onePixel(top, bottom, m_atTop);
        const QRectF line(
            QPointF((across.start - left) / pixels.perUnitAcross, (down.start - top) / pixels.perUnitDown),
            QPointF((across.end - left) / pixels.perUnitAcross, (down.end - top) / pixels.perUnitDown));
        if (m_line->rect() != line) {
            m_line->setRect(line);
        }
    }

private:
    QSGRectangleNode* m_line; ///< owned by this node
    QSizeF m_size;
    bool m_atTop = false;
};

} // namespace

Hairline::Hairline(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void Hairline::setColor(const QColor& color) {
    if (m_color != color) {
        m_color = color;
        update();
        Q_EMIT changed();
    }
}

void Hairline::setAtTop(bool atTop) {
    if (m_atTop != atTop) {
        m_atTop = atTop;
        update();
        Q_EMIT changed();
    }
}

QSGNode* Hairline::updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) {
    Q_UNUSED(data)
    auto* node = static_cast<HairlineNode*>(former);
    if (node == nullptr) {
        node = new HairlineNode(window()->createRectangleNode());
    }
    node->setDevicePixelRatio(window()->effectiveDevicePixelRatio());
    node->setLine(size(), m_atTop, m_color);
    return node;
}

void Hairline::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

void Hairline::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged) {
        update();
    }
}

} // namespace velmora
