#include "ui/painting/DevicePixelItem.h"

#include "ui/painting/PixelSnappedNode.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <cmath>
#include <memory>

namespace velmora {

namespace {

/// The picture on whole pixels of the device: one of its own on each, although the item may fall between two.
class PictureNode final : public PixelSnappedNode {
public:
    explicit PictureNode(QSGImageNode* picture) : m_picture(picture) {
        picture->setFlag(OwnedByParent);
        picture->setOwnsTexture(true);
        picture->setFiltering(QSGTexture::Nearest);
        appendChildNode(picture);
    }
    void setTexture(QSGTexture* texture) {
        m_picture->setTexture(texture);
        m_size = texture->textureSize();
    }

protected:
    void placeOn(const Pixels& pixels) override {
        const QPointF shift(std::round(pixels.origin.x()) - pixels.origin.x(),
                            std::round(pixels.origin.y()) - pixels.origin.y());
        const QRectF place(shift.x() / pixels.perUnitAcross, shift.y() / pixels.perUnitDown,
                           m_size.width() / pixels.perUnitAcross, m_size.height() / pixels.perUnitDown);
        if (m_picture->rect() != place) {
            m_picture->setRect(place);
        }
    }

private:
    QSGImageNode* m_picture; ///< owned by this node
    QSizeF m_size;
};

} // namespace

DevicePixelItem::DevicePixelItem(QQuickItem* parent, Ground ground) : QQuickItem(parent), m_ground(ground) {
    setFlag(ItemHasContents);
}

void DevicePixelItem::repaint() { polish(); }

double DevicePixelItem::pixelsPerPoint() const {
    const double sceneScale = mapRectToScene(QRectF(0, 0, 1, 1)).width();
    return sceneScale * (window() != nullptr ? window()->effectiveDevicePixelRatio() : 1);
}

void DevicePixelItem::updatePolish() {
    m_pixelsPerPoint = pixelsPerPoint();
    const QSize pixels(qRound(width() * m_pixelsPerPoint), qRound(height() * m_pixelsPerPoint));
    if (pixels.isEmpty() || m_pixelsPerPoint <= 0) {
        m_picture = QImage();
    } else {
        if (m_picture.size() != pixels) {
            m_picture = QImage(pixels, m_ground == Ground::Opaque ? QImage::Format_RGB32
                                                                  : QImage::Format_ARGB32_Premultiplied);
        }
        if (m_ground == Ground::Transparent) {
            m_picture.fill(Qt::transparent);
        }
        QPainter painter(&m_picture);
        painter.scale(m_pixelsPerPoint, m_pixelsPerPoint);
        paint(painter);
    }
    update();
}

QSGNode* DevicePixelItem::updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) {
    Q_UNUSED(data)
    if (m_picture.isNull()) {
        delete former;
        return nullptr;
    }
    auto* node = static_cast<PictureNode*>(former);
    if (node == nullptr) {
        node = new PictureNode(window()->createImageNode());
    }
    node->setDevicePixelRatio(window()->effectiveDevicePixelRatio());
    node->setTexture(window()->createTextureFromImage(m_picture, m_ground == Ground::Opaque
                                                                     ? QQuickWindow::TextureIsOpaque
                                                                     : QQuickWindow::TextureHasAlphaChannel));
    return node;
}

void DevicePixelItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    repaint();
}

void DevicePixelItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) {
        repaint();
    }
    if (change == ItemSceneChange) {
        // The scene is scaled with the window, which does not change the item itself.
        disconnect(m_width);
        disconnect(m_height);
        if (data.window != nullptr) {
            m_width = connect(data.window, &QWindow::widthChanged, this, &DevicePixelItem::repaint);
            m_height = connect(data.window, &QWindow::heightChanged, this, &DevicePixelItem::repaint);
        }
    }
}

} // namespace velmora
