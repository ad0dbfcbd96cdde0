#pragma once

#include "platform/events/Subscription.h"
#include "ui/adapters/LabelAdapter.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class GenericEquationsViewController;
class SceneAdapter;

/// The rows of an equation list; their labels are laid out for the width that the table tells.
class EquationsAdapter final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY widthChanged)
    Q_PROPERTY(double rowHeight READ rowHeight NOTIFY refreshed)

public:
    enum Role { VariableRole = Qt::UserRole + 1, EquationRole, EqualsZeroRole, SpokenRole };

    EquationsAdapter(std::shared_ptr<GenericEquationsViewController> controller, SceneAdapter& scene);
    ~EquationsAdapter() override;

    QString title() const;
    double width() const { return m_width; }
    void setWidth(double width);
    double rowHeight() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void select(int row);

Q_SIGNALS:
    void widthChanged();
    void refreshed();

private:
    void refresh();

    std::shared_ptr<GenericEquationsViewController> m_controller;
    double m_width = 0;
    Subscription m_subscription;
};

} // namespace velmora
