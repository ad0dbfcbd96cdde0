#pragma once

#include "calculator/table/ValueTableMetrics.h"
#include "calculator/table/ValueTableView.h"
#include "toolkit/LabelRecord.h"

#include <vector>

namespace velmora {

/// A row of a table of pairs: the parameter at the left and, beside it, a line a pair with the names and
/// values of x and y in the colour of their curve. A cell may show one row after the other.
class ParametricValueCell {
public:
    /// The parameter's name and value; then of each pair the name of x, its value, the name of y, its value.
    const std::vector<LabelRecord>& labelArray() const { return m_labels; }

    /// `row` may be null: its values have not been computed yet.
    void show(const ValueTableView& table, int number, const ValueTableView::Row* row,
              const ValueTableMetrics& metrics);

private:
    std::vector<LabelRecord> m_labels;
};

} // namespace velmora
