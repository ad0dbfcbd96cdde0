#include "calculator/history/DisplayHistoryTableViewController.h"

#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/keyboard/KeyboardSizes.h"
#include "calculator/model/Model.h"
#include "platform/machine/Pasteboard.h"

namespace velmora {

int DisplayHistoryTableViewController::nTipCells() const {
    return Model::m().shouldShowSettingsTip() ? 1 : 0;
}

int DisplayHistoryTableViewController::numberOfRows() const {
    return nTipCells() + Model::m().history().nExpressions();
}

double DisplayHistoryTableViewController::rowHeight() const {
    return keyboardSizes(Model::m().keyboardGeometry()).historyRowHeight;
}

std::string DisplayHistoryTableViewController::reuseIdentifierForRow(int row) const {
    return isTipRow(row) ? DisplayTipCell::kReuseIdentifier : DisplayHistoryCell::kReuseIdentifier;
}

DisplayTipCell DisplayHistoryTableViewController::tipCell(double width) const {
    DisplayTipCell cell;
    cell.layout({width, rowHeight()});
    return cell;
}

DisplayHistoryCell DisplayHistoryTableViewController::historyCell(int row, double width) const {
    DisplayHistoryCell cell(this, row);
    const ExpressionList& history = Model::m().history();
    const int index = row - nTipCells();
    if (const ExpressionWithTokenArray* entry = history.entryAtIndex(index)) {
        cell.setTexts(history.expressionString(index), entry->resultText());
    }
    cell.layout({width, rowHeight()});
    return cell;
}

void DisplayHistoryTableViewController::copyFromRow(int row, bool left) const {
    if (const ExpressionWithTokenArray* entry = Model::m().history().entryAtIndex(row - nTipCells())) {
        if (left) {
            entry->copyToPasteboard();
        } else {
            generalPasteboard().setText(entry->resultText());
        }
    }
}

void DisplayHistoryTableViewController::reloadTableView() {
    if (m_screen) {
        m_screen->reloadHistory();
    }
}

void DisplayHistoryTableViewController::scrollToEndAnimated(bool animated) {
    if (m_screen && numberOfRows() > 0) {
        m_screen->scrollHistoryToEnd(animated);
    }
}

} // namespace velmora
