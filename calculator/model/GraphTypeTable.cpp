#include "calculator/model/GraphTypeTable.h"

#include <utility>

namespace velmora {

const std::vector<GraphTypeRow>& graphTypeTable() {
    static const std::vector<GraphTypeRow> table{
        {.type = GraphType::Function,
         .choice = "function",
         .lists = {&Model::equations},
         .equationsScreen = "EquationsViewController",
         .equationsTitle = "Equations",
         .entering = kEnteringFunction,
         .canBeTraced = true},
        {.type = GraphType::Polar,
         .choice = "polar",
         .lists = {&Model::polarR},
         .equationsScreen = "EquationsViewController",
         .equationsTitle = "Polar Equations",
         .entering = kEnteringFunction, // the variable comes from the list
         .rangeStart = &Model::thetaStartForPolarGraph,
         .rangeEnd = &Model::thetaEndForPolarGraph,
         .rangeStartKey = "thetaStartForPolarGraph"},
        {.type = GraphType::Parametric,
         .choice = "parametric",
         .lists = {&Model::parametricX, &Model::parametricY},
         .equationsScreen = "ParametricEquationsViewController",
         .equationsTitle = "Parametric Equations",
         .entering = kEnteringParametric,
         .rangeStart = &Model::tStartForParametricGraph,
         .rangeEnd = &Model::tEndForParametricGraph,
         .rangeStartKey = "tStartForParametricGraph"},
    };
    return table;
}

const GraphTypeRow* graphTypeRow(int type) {
    const auto& table = graphTypeTable();
    return type >= 0 && std::cmp_less(type, table.size()) ? &table[static_cast<std::size_t>(type)] : nullptr;
}

std::vector<std::string> graphTypeChoices() {
    std::vector<std::string> choices;
    for (const GraphTypeRow& row : graphTypeTable()) {
        choices.emplace_back(row.choice);
    }
    return choices;
}

bool graphTypeIs(GraphType type) { return Model::m().graphType() == static_cast<int>(type); }

std::vector<ExpressionList*> graphedLists() {
    Model& model = Model::m();
    std::vector<ExpressionList*> lists;
    if (const GraphTypeRow* row = graphTypeRow(model.graphType())) {
        for (const GraphTypeRow::List list : row->lists) {
            lists.push_back(&(model.*list)());
        }
    }
    return lists;
}

} // namespace velmora
