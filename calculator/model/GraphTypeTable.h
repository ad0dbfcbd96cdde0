#pragma once

#include "calculator/model/Entering.h"
#include "calculator/model/GraphType.h"
#include "calculator/model/Model.h"

#include <string>
#include <vector>

namespace velmora {

/// Everything that follows from a graph type.
struct GraphTypeRow {
    using List = ExpressionList& (Model::*)();
    using Bound = double (ModelSettings::*)() const;

    GraphType type;
    const char* choice; ///< its name where it is chosen
    /// The lists whose entries of one slot make one curve, in the order of their labels.
    std::vector<List> lists;
    const char* equationsScreen; ///< the name in the screen registry of the editor of its equations
    const char* equationsTitle;
    Entering entering; ///< the keyboard's mode for its equations
    /// The range of the curve's variable and the property that its first settings row edits; null for
    /// functions of x, whose range is the graph's own.
    Bound rangeStart = nullptr;
    Bound rangeEnd = nullptr;
    const char* rangeStartKey = nullptr;
    bool canBeTraced = false;

    bool hasRange() const { return rangeStart != nullptr; }
    /// Two expressions a curve, across and upward.
    bool isPaired() const { return lists.size() > 1; }
};

/// In the order of GraphType.
const std::vector<GraphTypeRow>& graphTypeTable();
/// Null for a number that is no graph type.
const GraphTypeRow* graphTypeRow(int type);

/// What the types are called where one is chosen, in their order.
std::vector<std::string> graphTypeChoices();

/// Whether the model's graph type is this one.
bool graphTypeIs(GraphType type);
/// The lists of the model's graph type; none for a number that is no type.
std::vector<ExpressionList*> graphedLists();

} // namespace velmora
