#include "ui/adapters/HistoryListModel.h"

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "ui/adapters/QtConversions.h"

#include <algorithm>

namespace velmora {

HistoryListModel::HistoryListModel(std::shared_ptr<KeyboardViewController> controller)
    : m_controller(std::move(controller)) {}

int HistoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case InputTextRole:
        return row.input;
    case OutputTextRole:
        return row.output;
    case OutputColorRole:
        return row.outputColor;
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
    return {{InputTextRole, "inputText"}, {OutputTextRole, "outputText"}, {OutputColorRole, "outputColor"}};
}

void HistoryListModel::reload() {
    std::vector<Row> rows = currentRows();
    const auto [kept, unused] = std::ranges::mismatch(m_rows, rows);
    const int first = static_cast<int>(kept - m_rows.begin());
    if (first < rowCount()) {
        beginRemoveRows({}, first, rowCount() - 1);
        m_rows.resize(static_cast<std::size_t>(first));
        endRemoveRows();
    }
    if (first < static_cast<int>(rows.size())) {
        beginInsertRows({}, first, static_cast<int>(rows.size()) - 1);
        m_rows = std::move(rows);
        endInsertRows();
    }
}

std::vector<HistoryListModel::Row> HistoryListModel::currentRows() const {
    std::vector<Row> rows;
    if (const DisplayHistoryTableViewController* table = m_controller->displayTableViewController()) {
        const double width = m_controller->keyboardView().size().width;
        for (int row = table->nTipCells(); row < table->numberOfRows(); ++row) {
            const DisplayHistoryCell cell = table->historyCell(row, width);
            rows.push_back({QString::fromStdString(cell.inputLabel().text),
                            QString::fromStdString(cell.outputLabel().text),
                            toQColor(cell.outputLabel().textColor)});
        }
    }
    return rows;
}

} // namespace velmora
