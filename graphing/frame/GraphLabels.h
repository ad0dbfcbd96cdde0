#pragma once

#include "graphing/frame/GraphFrame.h"
#include "toolkit/LabelRecord.h"

#include <vector>

namespace velmora {

/// The size class of the words over the graph, as the model has it at one moment.
struct GraphLabelLayout {
    double fontSize;
    double width;
    double height;

    static GraphLabelLayout inView(double viewWidth);
};

/// The eight lines at the top of the graph: the trace's x, the curves or their values at the trace, and how
/// to end the trace. Lines that are not needed are empty.
std::vector<LabelRecord> graphLabels(const GraphFrame& frame, const GraphLabelLayout& layout);

/// What stands over a graph without curves.
LabelRecord noGraphLabelRecord(bool isShown);

} // namespace velmora
