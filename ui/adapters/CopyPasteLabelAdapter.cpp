#include "ui/adapters/CopyPasteLabelAdapter.h"

namespace velmora {

CopyPasteLabelAdapter::CopyPasteLabelAdapter() {
    m_label.onChange = [this] { Q_EMIT changed(); };
}

QPointF CopyPasteLabelAdapter::menuPoint() const {
    const auto& point = m_label.menuPoint();
    return point ? QPointF(point->x, point->y) : QPointF();
}

} // namespace velmora
