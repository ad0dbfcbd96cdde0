#pragma once

#include "calculator/table/ValueTableMetrics.h"
#include "calculator/table/ValueTableView.h"
#include "toolkit/LabelRecord.h"

#include <vector>

namespace velmora {

/// A row of a table of functions: the variable's value and, beside it, the value of each equation in the
/// colour of its curve. A cell may show one row after the other.
class ValueCell {
public:
    const std::vector<LabelRecord>& labelArray() const { return m_labels; }

    /// `row` may be null: its values have not been computed yet, and the variable stands alone.
    void show(const ValueTableView& table, int number, const ValueTableView::Row* row,
              const ValueTableMetrics& metrics);

    /// Where the label of a column stands; column 0 is the variable's.
    static Rect frameOfColumn(std::size_t column, std::size_t columns, const ValueTableMetrics& metrics);

private:
    std::vector<LabelRecord> m_labels;
};

} // namespace velmora
