#include "calculator/table/RowSelectedViewController.h"

#include "calculator/keyboard/CalculatorOfScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"
#include "calculator/table/TableText.h"
#include "engine/display/FullPrecisionText.h"
#include "engine/display/NumberDisplay.h"
#include "platform/machine/Pasteboard.h"

namespace velmora {

std::vector<TableRowLine> tableRowLines(const ValueTableView& table, const ValueTableView::Row& row) {
    std::vector<TableRowLine> lines{
        {table.variableName(), displayStringWithDouble(row.variable), row.variable, kTableTextColor}};
    for (std::size_t i = 0; i < table.count(); ++i) {
        const int slot = table.equationIndicesArray()[i];
        const Color color = slotColor(static_cast<std::size_t>(slot));
        if (!table.isParametric()) {
            lines.push_back({table.target()->fullFunctionNameWithIndex(slot),
                             displayStringWithComplex(row.values[i]), row.values[i], color});
            continue;
        }
        const ComplexValue x = row.values[2 * i];
        const ComplexValue y = row.values[2 * i + 1];
        // Of x the real part is shown in either case, of y "complex": intended, as it is where the curve is
        // drawn that x comes from.
        lines.push_back(
            {table.xtarget()->fullFunctionNameWithIndex(slot), displayStringWithDouble(x.real()), x, color});
        lines.push_back(
            {table.ytarget()->fullFunctionNameWithIndex(slot), displayStringWithComplex(y), y, color});
    }
    return lines;
}

RowSelectedViewController::RowSelectedViewController(const ValueTableView& table,
                                                     const ValueTableView::Row& row)
    : m_lines(tableRowLines(table, row)) {
    setTitle(m_lines.front().name + " = " + m_lines.front().text);
    const char* blanksOfVariable = table.isParametric() ? "       " : "      ";
    for (const TableRowLine& line : m_lines) {
        const bool isVariable = &line == &m_lines.front();
        m_labels.push_back({.text = line.name + (isVariable ? blanksOfVariable : " ") + "= " + line.text,
                            .textColor = line.color});
    }
}

void RowSelectedViewController::copy(std::size_t line) const {
    if (line < m_lines.size()) {
        generalPasteboard().setText(fullPrecisionText(m_lines[line].value));
    }
}

void RowSelectedViewController::enter(std::size_t line) const {
    if (line < m_lines.size()) {
        returnToCalculator(navigationController(), [&](KeyboardViewController& calculator) {
            calculator.numberEntered(m_lines[line].value);
        });
    }
}

bool RowSelectedViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
