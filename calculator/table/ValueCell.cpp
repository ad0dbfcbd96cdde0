#include "calculator/table/ValueCell.h"

#include "calculator/model/SlotColors.h"
#include "calculator/table/TableText.h"
#include "engine/display/NumberDisplay.h"

#include <algorithm>

namespace velmora {

Rect ValueCell::frameOfColumn(std::size_t column, std::size_t columns, const ValueTableMetrics& metrics) {
    const double top = metrics.labelMargin / 2;
    if (column == 0) {
        return {metrics.margin, top, metrics.leftLabelWidth, metrics.labelHeight()};
    }
    const double left = metrics.margin + metrics.leftLabelWidth;
    const double each =
        (metrics.width - left - metrics.margin) / static_cast<double>(std::max<std::size_t>(columns, 2) - 1);
    constexpr double gap = 4; // so that no number runs into the next one
    return {left + static_cast<double>(column - 1) * each + gap, top, each - gap, metrics.labelHeight()};
}

void ValueCell::show(const ValueTableView& table, int number, const ValueTableView::Row* row,
                     const ValueTableMetrics& metrics) {
    const std::size_t columns = 1 + table.count();
    m_labels.resize(columns);
    for (std::size_t column = 0; column < columns; ++column) {
        const Rect frame = frameOfColumn(column, columns, metrics);
        if (column == 0) {
            m_labels[0] = tableLabel(displayStringWithDouble(table.valueOfRow(number)), frame, metrics);
        } else {
            const auto slot = static_cast<std::size_t>(table.equationIndicesArray()[column - 1]);
            m_labels[column] = tableLabel(valueText(row, column - 1), frame, metrics, slotColor(slot));
        }
        m_labels[column].alignment = TextAlignment::Centre;
    }
}

} // namespace velmora
