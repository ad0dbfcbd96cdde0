#pragma once

#include <QImage>
#include <QQuickItem>

class QPainter;

namespace velmora {

/// An item that is painted in the pixels of the device, however the scene is scaled, so that lines are
/// sharp. (Qt's own painted item paints before the scene's scale and is blurred by it.)
class DevicePixelItem : public QQuickItem {
    Q_OBJECT

public:
    /// Whether the item covers what is below it wherever it paints nothing, or lets it be seen.
    enum class Ground : unsigned char { Opaque, Transparent };

    explicit DevicePixelItem(QQuickItem* parent = nullptr, Ground ground = Ground::Opaque);

    /// Has the item painted anew before the next frame.
    void repaint();
    /// What is on display, in pixels of the device.
    const QImage& picture() const { return m_picture; }

protected:
    /// Paints the whole item. The painter's unit is the scene's point.
    virtual void paint(QPainter& painter) = 0;

    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    double pixelsPerPoint() const;

    Ground m_ground;
    QImage m_picture;
    double m_pixelsPerPoint = 1;
    QMetaObject::Connection m_width;
    QMetaObject::Connection m_height;
};

} // namespace velmora
