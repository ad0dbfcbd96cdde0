#include "graphing/equations/ParametricEquationsViewController.h"

#include "calculator/model/Entering.h"
#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"

namespace velmora {

namespace {

ExpressionList& listOfRow(int row) {
    return row % 2 == 0 ? Model::m().parametricX() : Model::m().parametricY();
}

int slotOfRow(int row) { return row / 2; }

} // namespace

ParametricEquationsViewController::ParametricEquationsViewController() {
    setTitle("Parametric Equations");
    setTabTitle("Equations");
    createRangeButton();
}

int ParametricEquationsViewController::numberOfRows() const {
    return 2 * Model::m().parametricX().nExpressions();
}

double ParametricEquationsViewController::heightForRow() const {
    return GenericEquationsViewController::heightForRow() / 2;
}

EquationCell ParametricEquationsViewController::cell(int row, double width) const {
    // The whole description stands in one label, so that x and y of a pair begin at one place.
    return {Size{width, heightForRow()}, std::string(), listOfRow(row).descriptionWithIndex(slotOfRow(row)),
            slotColor(static_cast<std::size_t>(slotOfRow(row)))};
}

void ParametricEquationsViewController::selectRow(int row) {
    openEditor(kEnteringParametric, listOfRow(row), slotOfRow(row));
}

} // namespace velmora
