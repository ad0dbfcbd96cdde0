#pragma once

#include "graphing/frame/GraphLook.h"
#include "graphing/plot/ParameterCurves.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

class Expression;
class ExpressionList;
struct GraphTypeRow;

/// What a frame depends on besides the viewport and the trace, as the model has it at one moment.
struct GraphSettings {
    /// One slot: its expressions, across and upward for a pair; any may be null.
    struct Curve {
        std::size_t slot;
        std::vector<std::shared_ptr<const Expression>> expressions;
    };

    GraphLook look;
    bool oneLinePerMark = false;
    bool sameScale = false;
    bool acceptsAlmostReal = false;
    bool inDegrees = false;
    bool showsLabels = true;
    /// Null for a type that is not known, of which nothing is drawn.
    const GraphTypeRow* type = nullptr;
    ParameterRange range{}; ///< of the curves' variable, where the type has one
    std::vector<const ExpressionList*> lists{};
    std::vector<Curve> curves{}; ///< of the first four slots

    static GraphSettings ofModel(bool isWide);
};

} // namespace velmora
