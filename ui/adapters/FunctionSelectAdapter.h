#pragma once

#include "platform/events/Subscription.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class FunctionSelectViewController;
class SceneAdapter;

/// A list to choose from, as a list model of its rows.
class FunctionSelectAdapter final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QStringList angleModes READ angleModes CONSTANT)
    Q_PROPERTY(int angleMode READ angleMode WRITE setAngleMode NOTIFY rowsRefreshed)
    Q_PROPERTY(bool hasSearch READ hasSearch CONSTANT)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY rowsRefreshed)
    Q_PROPERTY(bool editing READ isEditing NOTIFY rowsRefreshed)

public:
    enum Role {
        KindRole = Qt::UserRole + 1, ///< "angles", "heading", "greeting", "link", "list" or "entry"
        TitleRole,
        DetailRole,
        DetailAtRightRole,
        ValueRole,
        RowHeightRole,
        SelectableRole,
        SpokenRole
    };

    FunctionSelectAdapter(std::shared_ptr<FunctionSelectViewController> controller,
                          const SceneAdapter& scene);
    ~FunctionSelectAdapter() override;

    QString title() const;
    QStringList angleModes() const;
    int angleMode() const;
    void setAngleMode(int mode);
    bool isEditing() const;
    bool hasSearch() const;
    QString searchText() const;
    void setSearchText(const QString& text);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void select(int row);
    /// How wide the titles of rows with a hint are, in points: one column for the whole list, so that the
    /// hints stand below each other.
    Q_INVOKABLE double titleColumn(double rowWidth) const;
    /// The one size of all the hints: the largest in which each of them fits into its row.
    Q_INVOKABLE int detailSize(double detailWidth) const;

Q_SIGNALS:
    void rowsRefreshed();

private:
    void refresh();

    std::shared_ptr<FunctionSelectViewController> m_controller;
    int m_rowCount = 0;
    Subscription m_subscription;
};

} // namespace velmora
