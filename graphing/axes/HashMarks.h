#pragma once

#include "graphing/plot/Viewport.h"
#include "toolkit/LabelRecord.h"

#include <vector>

namespace velmora {

/// How far apart labelled hash marks stand, in units of the graph, and how many grid lines go with each.
struct HashMarkSpacing {
    double hashmarkSpacing = 0; ///< 0 means that none is chosen
    int linesPerHashmark = 0;

    /// A round spacing that puts about four to eight marks on the range. None for a range that is not
    /// finite and positive. `oneLinePerMark`: grid lines stand at hash marks only.
    static HashMarkSpacing chosenFor(double low, double high, bool oneLinePerMark);

    bool operator==(const HashMarkSpacing&) const = default;
};

/// The grid lines, ticks and numbers along one axis, in points of the screen.
struct HashMarks {
    /// Distances along the axis: x for marks along the horizontal axis, y along the vertical one.
    std::vector<float> gridLines;
    std::vector<float> ticks;
    /// Where the axis stands across the screen; at the edge while it is off screen.
    float axisPosition = 0;
    std::vector<LabelRecord> labels;

    /// `wide`: the view has room for larger numbers.
    static HashMarks along(bool vertical, const Viewport& viewport, const HashMarkSpacing& spacing, bool wide,
                           const Color& textColor);
};

} // namespace velmora
