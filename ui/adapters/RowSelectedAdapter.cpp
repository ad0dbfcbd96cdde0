#include "ui/adapters/RowSelectedAdapter.h"

#include "calculator/table/RowSelectedViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/LabelAdapter.h"

namespace velmora {

RowSelectedAdapter::RowSelectedAdapter(std::shared_ptr<RowSelectedViewController> controller,
                                       const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
}

RowSelectedAdapter::~RowSelectedAdapter() = default;

QString RowSelectedAdapter::title() const { return QString::fromStdString(m_controller->title()); }

int RowSelectedAdapter::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_controller->lines().size());
}

QVariant RowSelectedAdapter::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
    case LabelRole:
        return QVariant::fromValue(LabelAdapter(m_controller->labelArray()[row]));
    case NameRole:
        return QString::fromStdString(m_controller->lines()[row].name);
    case ValueRole:
        return QString::fromStdString(m_controller->lines()[row].text);
    default:
        return {};
    }
}

QHash<int, QByteArray> RowSelectedAdapter::roleNames() const {
    return {{LabelRole, "label"}, {NameRole, "name"}, {ValueRole, "value"}};
}

void RowSelectedAdapter::copy(int row) const {
    const ActionScope action;
    m_controller->copy(static_cast<std::size_t>(row));
}

void RowSelectedAdapter::enter(int row) const {
    const ActionScope action;
    m_controller->enter(static_cast<std::size_t>(row));
}

} // namespace velmora
