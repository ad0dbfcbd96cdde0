#pragma once

#include "platform/events/Subscription.h"

#include <QAbstractListModel>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class SceneAdapter;
class ValueTableViewController;

/// The rows of the table of values; their labels are laid out for the width that the table tells.
class ValueTableAdapter final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY refreshed)
    Q_PROPERTY(double rowHeight READ rowHeight NOTIFY refreshed)
    Q_PROPERTY(QVariantList header READ header NOTIFY refreshed)
    Q_PROPERTY(double headerHeight READ headerHeight NOTIFY refreshed)
    Q_PROPERTY(int markedRow READ markedRow NOTIFY markMoved)

public:
    enum Role { LabelsRole = Qt::UserRole + 1, SpokenRole, MarkedRole, SelectableRole };

    ValueTableAdapter(std::shared_ptr<ValueTableViewController> controller, SceneAdapter& scene);
    ~ValueTableAdapter() override;

    QString title() const;
    double width() const { return m_width; }
    void setWidth(double width);
    double rowHeight() const;
    QVariantList header() const;
    double headerHeight() const;
    int markedRow() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void select(int row);
    /// A key of a hardware keyboard. False when it means nothing here.
    Q_INVOKABLE bool pressHardwareKey(int key, const QString& text, int modifiers, int rowsPerPage);

Q_SIGNALS:
    void refreshed();
    void markMoved();

private:
    void refresh();

    std::shared_ptr<ValueTableViewController> m_controller;
    double m_width = 0;
    int m_rowCount = 0;
    Subscription m_reloads;
    Subscription m_rowChanges;
};

} // namespace velmora
