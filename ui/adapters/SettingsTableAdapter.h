#pragma once

#include "platform/events/Subscription.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace velmora {

class OrvSettingsCell;
class OrvSettingsTableViewController;
class SceneAdapter;

/// A settings table as one list of headers and rows.
class SettingsTableAdapter final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)

public:
    enum Role {
        KindRole = Qt::UserRole + 1, ///< "header", "switch", "segmented", "pick", "slider", "field", "text"
                                     ///< or "action"
        TitleRole,
        ValueRole,
        ItemsRole,
        ChosenRole,
        FractionRole,
        ExplanationRole,
        PlaceholderRole,
        EnabledRole
    };

    SettingsTableAdapter(std::shared_ptr<OrvSettingsTableViewController> controller, SceneAdapter& scene);
    ~SettingsTableAdapter() override;

    QString title() const;
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void choose(int row, int index);
    Q_INVOKABLE void setText(int row, const QString& text);
    Q_INVOKABLE void setFraction(int row, double fraction);
    Q_INVOKABLE void tap(int row);

private:
    struct Row {
        QString header; ///< of a header, which has no cell
        std::shared_ptr<OrvSettingsCell> cell;
    };
    void refresh();
    /// The cell of a row; null for a header.
    std::shared_ptr<OrvSettingsCell> cell(int row) const;

    std::shared_ptr<OrvSettingsTableViewController> m_controller;
    SceneAdapter& m_scene;
    std::vector<Row> m_rows;
    Subscription m_subscription;
};

} // namespace velmora
