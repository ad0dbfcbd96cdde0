#include "ui/adapters/MoreListAdapter.h"

#include "platform/events/ActionScope.h"
#include "platform/screens/TabBarController.h"
#include "ui/adapters/SceneAdapter.h"

#include <QUrl>

namespace velmora {

MoreListAdapter::MoreListAdapter(std::shared_ptr<TabBarController> tabBar, const SceneAdapter& scene)
    : m_tabBar(std::move(tabBar)), m_scene(scene) {}

int MoreListAdapter::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_tabBar->viewControllers().size() - m_tabBar->visibleTabCount());
}

QVariant MoreListAdapter::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const ViewController& tab =
        *m_tabBar->viewControllers()[m_tabBar->visibleTabCount() + std::size_t(index.row())];
    switch (role) {
    case TitleRole:
        return QString::fromStdString(tab.tabTitle());
    case IconRole:
        return m_scene.artwork(tab.tabImage());
    default:
        return {};
    }
}

QHash<int, QByteArray> MoreListAdapter::roleNames() const {
    return {{TitleRole, "title"}, {IconRole, "icon"}};
}

void MoreListAdapter::select(int row) {
    const ActionScope action;
    if (row >= 0) {
        m_tabBar->tapTab(m_tabBar->visibleTabCount() + std::size_t(row));
    }
}

} // namespace velmora
