#include "ui/painting/DevicePixelItem.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <cmath>
#include <memory>

namespace velmora {

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
    auto* node = static_cast<QSGImageNode*>(former);
    if (node == nullptr) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Nearest);
    }
    node->setTexture(window()->createTextureFromImage(m_picture, m_ground == Ground::Opaque
                                                                     ? QQuickWindow::TextureIsOpaque
                                                                     : QQuickWindow::TextureHasAlphaChannel));
    // One pixel of the picture on one of the device, although the item's place may fall between two.
    const QPointF pixel = mapToScene(QPointF()) * window()->effectiveDevicePixelRatio();
    const QPointF shift(std::round(pixel.x()) - pixel.x(), std::round(pixel.y()) - pixel.y());
    node->setRect(QRectF(shift / m_pixelsPerPoint, QSizeF(m_picture.size()) / m_pixelsPerPoint));
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
}

} // namespace velmora
