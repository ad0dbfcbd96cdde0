#pragma once

#include "graphing/plot/GraphMetaData.h"
#include "graphing/plot/PlottedCurve.h"
#include "graphing/plot/Viewport.h"

namespace velmora {

class Expression;

/// The range of a curve's parameter.
struct ParameterRange {
    double start = 0;
    double end = 0;
};

// Curves of a parameter are one line through 1000 steps of it, cheap at every zoom. The value at the end of
// the range is not drawn, values that are not real count by their real part, and no jump is left open; all
// of this is intended. Nothing is drawn of an expression that is not graphable.

/// r as a function of the angle, which the expression sees in the user's unit.
PlottedCurve graphPolar(const Expression& radius, const ParameterRange& angles, bool inDegrees,
                        const Viewport& viewport, GraphMetaData& metaData);

PlottedCurve graphParametrically(const Expression& x, const Expression& y, const ParameterRange& times,
                                 const Viewport& viewport, GraphMetaData& metaData);

} // namespace velmora
