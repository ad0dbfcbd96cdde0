#include "ui/painting/PixelSnappedNode.h"

#include <QMatrix4x4>

namespace velmora {

PixelSnappedNode::PixelSnappedNode() { setFlag(UsePreprocess); }

void PixelSnappedNode::preprocess() {
    QMatrix4x4 toWindow;
    for (const QSGNode* node = parent(); node != nullptr; node = node->parent()) {
        if (node->type() == TransformNodeType) {
            toWindow = static_cast<const QSGTransformNode*>(node)->matrix() * toWindow;
        }
    }
    const QPointF origin = toWindow.map(QPointF()) * m_devicePixelRatio;
    const QPointF unit = toWindow.map(QPointF(1, 1)) * m_devicePixelRatio - origin;
    if (unit.x() > 0 && unit.y() > 0) {
        placeOn({unit.x(), unit.y(), origin});
    }
}

} // namespace velmora
