#pragma once

#include "platform/screens/Color.h"
#include "platform/screens/Geometry.h"
#include "toolkit/LabelRecord.h"

#include <QColor>
#include <QRectF>

namespace velmora {

inline QColor toQColor(const Color& color) {
    return QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.alpha));
}

inline Qt::AlignmentFlag toQtAlignment(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::Left:
        return Qt::AlignLeft;
    case TextAlignment::Centre:
        return Qt::AlignHCenter;
    case TextAlignment::Right:
        return Qt::AlignRight;
    }
    return Qt::AlignLeft;
}

inline QRectF toQRectF(const Rect& rect) { return {rect.x, rect.y, rect.width, rect.height}; }

} // namespace velmora
