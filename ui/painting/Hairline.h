#pragma once

#include <QColor>
#include <QQuickItem>

namespace velmora {

/// A line of exactly one pixel of the device, at every scale of the scene and with every renderer. It lies
/// along the lower edge of its item, or with atTop along the upper one; in an item that is higher than
/// wide, along the right edge, or with atTop along the left one. So it needs no height of its own.
class Hairline : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(bool atTop READ isAtTop WRITE setAtTop NOTIFY changed)

public:
    explicit Hairline(QQuickItem* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    bool isAtTop() const { return m_atTop; }
    void setAtTop(bool atTop);

Q_SIGNALS:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    QColor m_color = Qt::white;
    bool m_atTop = false;
};

} // namespace velmora
