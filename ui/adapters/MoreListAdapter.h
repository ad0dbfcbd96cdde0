#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class SceneAdapter;
class TabBarController;

/// The tabs that do not fit the bar, as a list behind "More".
class MoreListAdapter final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    enum Role { TitleRole = Qt::UserRole + 1, IconRole };

    MoreListAdapter(std::shared_ptr<TabBarController> tabBar, const SceneAdapter& scene);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void select(int row);

private:
    std::shared_ptr<TabBarController> m_tabBar;
    const SceneAdapter& m_scene;
};

} // namespace velmora
