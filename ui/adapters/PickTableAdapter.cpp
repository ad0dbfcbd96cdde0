#include "ui/adapters/PickTableAdapter.h"

#include "platform/events/ActionScope.h"
#include "toolkit/OrvPickTableViewController.h"
#include "ui/adapters/SceneAdapter.h"

namespace velmora {

PickTableAdapter::PickTableAdapter(std::shared_ptr<OrvPickTableViewController> controller,
                                   const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
}

QString PickTableAdapter::title() const { return QString::fromStdString(m_controller->title()); }

QStringList PickTableAdapter::items() const {
    QStringList list;
    for (const std::string& item : m_controller->items()) {
        list.append(QString::fromStdString(item));
    }
    return list;
}

int PickTableAdapter::chosen() const { return m_controller->index(); }

void PickTableAdapter::choose(int index) {
    const ActionScope action;
    m_controller->choose(index);
    Q_EMIT chosenChanged();
}

} // namespace velmora
