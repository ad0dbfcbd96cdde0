#include "calculator/history/DisplayHistoryTableViewController.h"

#include "calculator/history/CopiedResult.h"
#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/keyboard/KeyboardSizes.h"
#include "calculator/model/Model.h"
#include "platform/machine/Pasteboard.h"

#include <cmath>

namespace velmora {

namespace {

/// Whether the result is a number, and not an error's text or "Undefined".
bool hasValue(const ExpressionWithTokenArray& entry) {
    const ComplexValue value = entry.resultValue();
    return !std::isnan(value.real()) && !std::isnan(value.imag());
}

} // namespace

int DisplayHistoryTableViewController::nTipCells() const {
    return Model::m().shouldShowSettingsTip() ? 1 : 0;
}

int DisplayHistoryTableViewController::numberOfRows() const {
    return nTipCells() + Model::m().history().nExpressions();
}

std::string DisplayHistoryTableViewController::hint() const {
    return Model::m().history().nExpressions() > 0
               ? std::string()
               : "Try 2^10 or sqrt(2) and press =\nA tap on a result uses it again.";
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
        cell.setHasValue(hasValue(*entry));
    }
    cell.layout({width, rowHeight()});
    return cell;
}

void DisplayHistoryTableViewController::copyFromRow(int row, bool left) const {
    if (const ExpressionWithTokenArray* entry = Model::m().history().entryAtIndex(row - nTipCells())) {
        if (left) {
            entry->copyToPasteboard();
        } else {
            generalPasteboard().setItems({copiedResult(*entry)});
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
