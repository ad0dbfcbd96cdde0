#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class RowSelectedViewController;
class SceneAdapter;

/// The values of one row of the table, as QML shows them.
class RowSelectedAdapter final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)

public:
    enum Role { LabelRole = Qt::UserRole + 1, NameRole, ValueRole };

    RowSelectedAdapter(std::shared_ptr<RowSelectedViewController> controller, const SceneAdapter& scene);
    ~RowSelectedAdapter() override;

    QString title() const;
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void copy(int row) const;
    Q_INVOKABLE void enter(int row) const;

private:
    std::shared_ptr<RowSelectedViewController> m_controller;
};

} // namespace velmora
