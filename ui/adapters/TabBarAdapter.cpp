#include "ui/adapters/TabBarAdapter.h"

#include "platform/events/ActionScope.h"
#include "platform/screens/TabBarController.h"
#include "ui/adapters/SceneAdapter.h"

#include <QUrl>

namespace velmora {

TabBarAdapter::TabBarAdapter(std::shared_ptr<TabBarController> tabBar, const SceneAdapter& scene)
    : m_tabBar(std::move(tabBar)), m_scene(scene) {
    m_subscriptions.push_back(m_tabBar->selectionChanged().subscribe([this] { refresh(); }));
    for (const auto& tab : m_tabBar->viewControllers()) {
        m_subscriptions.push_back(tab->changed().subscribe([this] { refresh(); }));
    }
    // A tablet's bar holds more tabs than a phone's, and icons are drawn for the scale.
    connect(&scene, &SceneAdapter::changed, this, &TabBarAdapter::refresh);
    refresh();
}

int TabBarAdapter::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }

bool TabBarAdapter::isMore(int row) const { return row == static_cast<int>(m_tabBar->visibleTabCount()); }

QVariant TabBarAdapter::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rows) {
        return {};
    }
    const bool more = isMore(index.row());
    const auto row = static_cast<std::size_t>(index.row());
    const auto& tabs = m_tabBar->viewControllers();
    const bool behindMore =
        m_tabBar->showsMoreList() || m_tabBar->selectedIndex() >= m_tabBar->visibleTabCount();
    switch (role) {
    case TitleRole:
        return more ? tr("More") : QString::fromStdString(tabs[row]->tabTitle());
    case IconRole:
        return more ? QVariant(m_scene.artwork("more")) : icon(*tabs[row]);
    case SelectedRole:
        return more ? behindMore : !m_tabBar->showsMoreList() && m_tabBar->selectedIndex() == row;
    default:
        return {};
    }
}

QVariant TabBarAdapter::icon(const ViewController& tab) const {
    return tab.tabImage().empty() ? QUrl() : m_scene.artwork(tab.tabImage());
}

QHash<int, QByteArray> TabBarAdapter::roleNames() const {
    return {{TitleRole, "title"}, {IconRole, "icon"}, {SelectedRole, "selected"}};
}

void TabBarAdapter::refresh() {
    const int rows = static_cast<int>(m_tabBar->visibleTabCount()) + (m_tabBar->hasMore() ? 1 : 0);
    if (rows != m_rows) {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    } else if (rows > 0) {
        Q_EMIT dataChanged(index(0), index(rows - 1));
    }
}

void TabBarAdapter::tap(int row) {
    const ActionScope action;
    if (isMore(row)) {
        m_tabBar->showMoreList();
    } else if (row >= 0) {
        m_tabBar->tapTab(static_cast<std::size_t>(row));
    }
}

} // namespace velmora
