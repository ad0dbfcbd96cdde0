#include "ui/painting/RoundedFace.h"

#include <QPainter>

#include <algorithm>

namespace velmora {

RoundedFace::RoundedFace(QQuickItem* parent) : DevicePixelItem(parent, Ground::Transparent) {}

void RoundedFace::paint(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QRectF area(QPointF(), size());
    double corner = std::min(m_radius, std::min(area.width(), area.height()) / 2);
    if (m_edgeColor.alpha() > 0 && m_edgeWidth > 0) {
        painter.setBrush(m_edgeColor);
        painter.drawRoundedRect(area, corner, corner);
        area.adjust(m_edgeWidth, m_edgeWidth, -m_edgeWidth, -m_edgeWidth);
        corner = std::max(0.0, corner - m_edgeWidth);
        painter.setCompositionMode(QPainter::CompositionMode_Source); // the edge does not shine through
    }
    painter.setBrush(m_color);
    painter.drawRoundedRect(area, corner, corner);
}

} // namespace velmora
