#pragma once

namespace velmora {

/// What kind of curves the graph, the equations and the table show. Kept and bound as its number.
enum class GraphType { Function = 0, Polar = 1, Parametric = 2 };

} // namespace velmora
