#include "graphing/equations/EquationsViewController.h"

#include "calculator/model/Entering.h"
#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"

namespace velmora {

EquationsViewController::EquationsViewController() {
    setTabTitle("Equations");
    if (const GraphTypeRow* type = graphTypeRow(Model::m().graphType())) {
        setTitle(type->equationsTitle);
        m_target = &(Model::m().*type->lists.front())();
        m_enteringWhat = type->entering;
        if (type->hasRange()) {
            createRangeButton();
        }
    } else {
        setTitle("Equations");
        m_target = &Model::m().equations();
        m_enteringWhat = kEnteringCalculatorLine;
    }
}

int EquationsViewController::numberOfRows() const { return m_target->nExpressions(); }

EquationCell EquationsViewController::cell(int row, double width) const {
    return {Size{width, heightForRow()}, m_target->fullFunctionNameWithIndex(row) + "=",
            m_target->expressionString(row), slotColor(static_cast<std::size_t>(row))};
}

void EquationsViewController::selectRow(int row) { openEditor(m_enteringWhat, *m_target, row); }

} // namespace velmora
