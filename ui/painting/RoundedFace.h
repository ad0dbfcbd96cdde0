#pragma once

#include "ui/painting/DevicePixelItem.h"

#include <QColor>

namespace velmora {

/// A rounded ground, drawn in the pixels of the device like the faces of the keys, so that its corners are
/// smooth and whole at every scale and with every renderer.
class RoundedFace : public DevicePixelItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor edgeColor READ edgeColor WRITE setEdgeColor NOTIFY changed) ///< transparent: no edge
    Q_PROPERTY(double edgeWidth READ edgeWidth WRITE setEdgeWidth NOTIFY changed)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY changed)

public:
    explicit RoundedFace(QQuickItem* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color) { set(m_color, color); }
    QColor edgeColor() const { return m_edgeColor; }
    void setEdgeColor(const QColor& color) { set(m_edgeColor, color); }
    double edgeWidth() const { return m_edgeWidth; }
    void setEdgeWidth(double width) { set(m_edgeWidth, width); }
    double radius() const { return m_radius; }
    void setRadius(double radius) { set(m_radius, radius); }

Q_SIGNALS:
    void changed();

protected:
    void paint(QPainter& painter) override;

private:
    template <class Value> void set(Value& member, const Value& value) {
        if (member != value) {
            member = value;
            repaint();
            Q_EMIT changed();
        }
    }

    QColor m_color = Qt::white;
    QColor m_edgeColor = Qt::transparent;
    double m_edgeWidth = 1;
    double m_radius = 6;
};

} // namespace velmora
