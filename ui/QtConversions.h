#pragma once

#include "platform/Color.h"
#include "platform/Geometry.h"

#include <QColor>
#include <QRectF>

namespace velmora {

inline QColor toQColor(const Color& color) {
    return QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.alpha));
}

inline QRectF toQRectF(const Rect& rect) { return {rect.x, rect.y, rect.width, rect.height}; }

} // namespace velmora
