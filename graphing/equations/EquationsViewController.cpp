#include "graphing/equations/EquationsViewController.h"

#include "calculator/model/Entering.h"
#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"

namespace velmora {

namespace {

constexpr int kPolarGraph = 1;

} // namespace

EquationsViewController::EquationsViewController() {
    const int graphType = Model::m().graphType();
    const bool polar = graphType == kPolarGraph;
    setTitle(polar ? "Polar Equations" : "Equations");
    setTabTitle("Equations");
    m_target = polar ? &Model::m().polarR() : &Model::m().equations();
    m_enteringWhat = graphType <= kPolarGraph ? kEnteringFunction : kEnteringCalculatorLine;
    if (polar) {
        createRangeButton();
    }
}

int EquationsViewController::numberOfRows() const { return m_target->nExpressions(); }

EquationCell EquationsViewController::cell(int row, double width) const {
    return {Size{width, heightForRow()}, m_target->fullFunctionNameWithIndex(row) + "=",
            m_target->expressionString(row), slotColor(static_cast<std::size_t>(row))};
}

void EquationsViewController::selectRow(int row) { openEditor(m_enteringWhat, *m_target, row); }

} // namespace velmora
