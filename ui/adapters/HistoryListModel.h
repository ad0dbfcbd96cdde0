#pragma once

#include <QAbstractListModel>
#include <QColor>

#include <memory>
#include <vector>

namespace velmora {

class KeyboardViewController;

/// The rows of the history, oldest first. The tip row above them is not among them.
class HistoryListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { InputTextRole = Qt::UserRole + 1, OutputTextRole, OutputColorRole };

    explicit HistoryListModel(std::shared_ptr<KeyboardViewController> controller);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Reads the table again; rows that are as before stay, so that their view does.
    void reload();

private:
    struct Row {
        QString input;
        QString output;
        QColor outputColor;
        bool operator==(const Row&) const = default;
    };
    std::vector<Row> currentRows() const;

    std::shared_ptr<KeyboardViewController> m_controller;
    std::vector<Row> m_rows;
};

} // namespace velmora
