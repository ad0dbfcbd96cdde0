#pragma once

#include "platform/events/Subscription.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace velmora {

class SceneAdapter;
class TabBarController;
class ViewController;

/// The tabs that stand in the bar, in their order, and last "More" where there are more.
class TabBarAdapter final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { TitleRole = Qt::UserRole + 1, IconRole, SelectedRole };

    TabBarAdapter(std::shared_ptr<TabBarController> tabBar, const SceneAdapter& scene);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void tap(int row);

private:
    bool isMore(int row) const;
    void refresh();
    QVariant icon(const ViewController& tab) const;

    std::shared_ptr<TabBarController> m_tabBar;
    const SceneAdapter& m_scene;
    int m_rows = 0;
    std::vector<Subscription> m_subscriptions;
};

} // namespace velmora
