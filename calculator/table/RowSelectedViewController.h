#pragma once

#include "calculator/table/ValueTableView.h"
#include "platform/screens/ViewController.h"
#include "toolkit/LabelRecord.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// One name and value of a row of the table: the variable's first, then those of the equations.
struct TableRowLine {
    std::string name;
    std::string text; ///< as it is displayed
    ComplexValue value;
    Color color;
};

std::vector<TableRowLine> tableRowLines(const ValueTableView& table, const ValueTableView::Row& row);

/// The values of one row of the table in full, to be read, copied or used on the calculator.
class RowSelectedViewController final : public ViewController {
public:
    RowSelectedViewController(const ValueTableView& table, const ValueTableView::Row& row);

    std::string className() const override { return "RowSelectedViewController"; }
    std::string qmlFile() const override { return "RowSelected.qml"; }

    /// The lines as they are written. The blanks line the equals signs up in the system's font.
    const std::vector<LabelRecord>& labelArray() const { return m_labels; }
    const std::vector<TableRowLine>& lines() const { return m_lines; }

    /// Copies a value with all its digits. Nothing for a line that does not exist.
    void copy(std::size_t line) const;
    /// Puts a value with all its digits into the calculator's line, which is then shown.
    void enter(std::size_t line) const;

    bool shouldAutorotate(Orientation orientation) const override;

private:
    std::vector<TableRowLine> m_lines;
    std::vector<LabelRecord> m_labels;
};

} // namespace velmora
