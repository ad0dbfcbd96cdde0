#pragma once

#include "calculator/history/DisplayHistoryCell.h"
#include "calculator/history/DisplayTipCell.h"

#include <string>

namespace velmora {

class KeyboardScreen;

/// The history table: the tip row when it is due, then one row a line of the history, oldest first.
class DisplayHistoryTableViewController {
public:
    /// The screen is told of reloads and scrolling; null while there is none.
    void setScreen(KeyboardScreen* screen) { m_screen = screen; }

    /// 1 while the tip about the settings is due, else 0.
    int nTipCells() const;
    int numberOfRows() const;
    bool isTipRow(int row) const { return row < nTipCells(); }
    /// The height of every row in the present geometry, in points.
    double rowHeight() const;
    /// The reuse identifier of the row's cell.
    std::string reuseIdentifierForRow(int row) const;
    DisplayTipCell tipCell(double width) const;
    /// The cell of a table row. A row outside the history has empty texts.
    DisplayHistoryCell historyCell(int row, double width) const;

    /// What to try, in lines, while there is no row yet; empty afterwards. It is no row of the table.
    std::string hint() const;

    /// Copies a row's line as the entry line does (left), or its result in full precision. A row outside the
    /// history copies nothing.
    void copyFromRow(int row, bool left) const;

    /// Lets the screen read the rows and their height anew.
    void reloadTableView();
    /// Nothing without rows.
    void scrollToEndAnimated(bool animated);

private:
    KeyboardScreen* m_screen = nullptr;
};

} // namespace velmora
