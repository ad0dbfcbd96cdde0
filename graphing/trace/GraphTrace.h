#pragma once

#include "engine/lines/ExpressionList.h"
#include "graphing/plot/Viewport.h"

#include <optional>

namespace velmora {

/// What the trace line of the graph looks for; 0 while there is none.
enum class TraceMode { None = 0, JustTrace = 1, FindRoots = 2, FindIntersections = 3, FindExtrema = 4 };

/// The x nearest to x0, within 30 points of the screen, at which the mode finds something among the
/// equations of the first four slots; nothing where it finds nothing. Roots and intersections are looked
/// for outward from x0, left before right; of several extrema that of the last slot is taken.
std::optional<double> tracedAbscissa(TraceMode mode, const ExpressionList& equations,
                                     const Viewport& viewport, double x0);

} // namespace velmora
