#include "graphing/trace/GraphTrace.h"

#include "engine/numbers/ShortNumber.h"
#include "engine/tree/Expression.h"
#include "engine/tree/MinMaxReturn.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr int kReach = 30; // points to either side
constexpr int kSlots = 4;

using Equations = std::array<std::shared_ptr<const Expression>, kSlots>;

/// The equations of the slots; null where nothing can be drawn.
Equations graphable(const ExpressionList& list) {
    Equations equations;
    for (int slot = 0; slot < kSlots; ++slot) {
        auto equation = list.expression(slot);
        if (equation && equation->isGraphable()) {
            equations.at(slot) = std::move(equation);
        }
    }
    return equations;
}

std::optional<double> rootIn(const Equations& equations, double a, double b) {
    for (const auto& equation : equations) {
        if (equation) {
            if (const auto root = equation->zero(a, b)) {
                return root;
            }
        }
    }
    return std::nullopt;
}

std::optional<double> intersectionIn(const Equations& equations, double a, double b) {
    for (int i = 1; i < kSlots; ++i) {
        for (int j = 0; j < i; ++j) {
            if (equations.at(i) && equations.at(j)) {
                if (const auto crossing =
                        equations.at(i)->intersectionWithExpression(*equations.at(j), a, b)) {
                    return crossing;
                }
            }
        }
    }
    return std::nullopt;
}

/// Looks through cells of a point's width, outward from x0.
template <class Search>
std::optional<double> searchedOutward(const Viewport& viewport, double x0, Search search) {
    const double point = (viewport.xMax - viewport.xMin) / viewport.width;
    for (int k = 0; k < kReach; k = k >= 0 ? -k - 1 : -k) {
        const double left = x0 + k * point;
        const double right = left + point;
        if (right < viewport.xMin || left > viewport.xMax) {
            continue;
        }
        if (const auto found = search(left, right)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<double> extremumNear(const Equations& equations, const Viewport& viewport, double x0) {
    const double point = (viewport.xMax - viewport.xMin) / viewport.width;
    double reach = kReach * point;
    std::optional<double> found;
    for (const auto& equation : equations) {
        if (!equation) {
            continue;
        }
        const auto extremum =
            equation->findMinMax(std::max(x0 - reach, viewport.xMin), std::min(x0 + reach, viewport.xMax),
                                 viewport.yMin, viewport.yMax, x0, point);
        if (extremum) {
            log("min or max at x=" + shortNumber(extremum->x));
            found = extremum->x;
            // Later slots look only closer by, in whole units of the graph: coarse, and intended, so that
            // a slot on top keeps its say.
            reach = std::min(reach, std::fabs(std::trunc(extremum->x - x0)));
        }
    }
    return found;
}

} // namespace

std::optional<double> tracedAbscissa(TraceMode mode, const ExpressionList& list, const Viewport& viewport,
                                     double x0) {
    const Equations equations = graphable(list);
    switch (mode) {
    case TraceMode::FindRoots:
        return searchedOutward(viewport, x0, [&](double a, double b) { return rootIn(equations, a, b); });
    case TraceMode::FindIntersections:
        return searchedOutward(viewport, x0,
                               [&](double a, double b) { return intersectionIn(equations, a, b); });
    case TraceMode::FindExtrema:
        return extremumNear(equations, viewport, x0);
    default:
        return std::nullopt;
    }
}

} // namespace velmora
