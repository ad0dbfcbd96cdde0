#pragma once

namespace velmora {

class Expression;

/// A local extremum that a search has found.
struct MinMaxReturn {
    double x = 0;
    bool isMin = false;
    const Expression* expression = nullptr; ///< in which it was found; not owned
};

} // namespace velmora
