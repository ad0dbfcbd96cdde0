#include "calculator/table/ParametricValueCell.h"

#include "calculator/model/SlotColors.h"
#include "calculator/table/TableText.h"
#include "engine/display/NumberDisplay.h"

namespace velmora {

namespace {

constexpr std::size_t kParameterLabels = 2;
constexpr std::size_t kLabelsOfPair = 4;
constexpr double kNamesShare = 0.35; // of a half of a line; the value has the rest

} // namespace

void ParametricValueCell::show(const ValueTableView& table, int number, const ValueTableView::Row* row,
                               const ValueTableMetrics& metrics) {
    m_labels.resize(kParameterLabels + kLabelsOfPair * table.count());
    const double left = metrics.leftLabelWidth;
    const double height = metrics.labelHeight();
    constexpr double top = 1;
    m_labels[0] = tableLabel(table.variableName() + "=", {metrics.margin, top, left, height}, metrics);
    m_labels[0].alignment = TextAlignment::Right;
    m_labels[1] = tableLabel(displayStringWithDouble(table.valueOfRow(number)),
                             {metrics.margin + left, top, left, height}, metrics);

    const double pairsLeft = metrics.margin + 2 * left + metrics.margin;
    const double half = (metrics.width - pairsLeft - metrics.margin) / 2;
    for (std::size_t pair = 0; pair < table.count(); ++pair) {
        const int slot = table.equationIndicesArray()[pair];
        const Color color = slotColor(static_cast<std::size_t>(slot));
        const double y = static_cast<double>(pair) * (height + metrics.labelMargin) + top;
        const ExpressionList* lists[] = {table.xtarget(), table.ytarget()};
        for (std::size_t side = 0; side < 2; ++side) {
            const double x = pairsLeft + static_cast<double>(side) * half;
            LabelRecord* labels = &m_labels[kParameterLabels + kLabelsOfPair * pair + 2 * side];
            labels[0] = tableLabel(lists[side]->fullFunctionNameWithIndex(slot) + "=",
                                   {x, y, kNamesShare * half, height}, metrics, color);
            labels[0].alignment = TextAlignment::Right;
            labels[1] =
                tableLabel(valueText(row, 2 * pair + side),
                           {x + kNamesShare * half, y, (1 - kNamesShare) * half, height}, metrics, color);
        }
    }
}

} // namespace velmora
