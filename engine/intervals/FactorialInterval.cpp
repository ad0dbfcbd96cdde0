#include "engine/intervals/FactorialInterval.h"

#include "engine/intervals/IntervalArithmetic.h"
#include "engine/numbers/IntegerFunctions.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kUlps = 4;

// The least value of Γ on the positive axis, at 1.4616… (Abramowitz and Stegun, 6.1.1 ff.), as a factorial.
constexpr double kLeastAt = 0.46163214496836226;
constexpr double kLeastValue = 0.8856031944108886;

/// Between two poles |Γ| falls from infinity and rises to it again (its logarithm is convex there), so it is
/// largest at an end; how small it gets is not looked for.
DecoratedInterval betweenPoles(const DecoratedInterval& a) {
    const double atLowest = factorial(a.lowest);
    const double atHighest = factorial(a.highest);
    const double largest = std::max(std::fabs(atLowest), std::fabs(atHighest));
    if (a.isPoint()) {
        return widened({atLowest, atHighest, a.decoration}, kUlps);
    }
    const DecoratedInterval range = atLowest > 0 || atHighest > 0
                                        ? DecoratedInterval{0, largest, a.decoration}
                                        : DecoratedInterval{-largest, 0, a.decoration};
    return widened(range, kUlps);
}

DecoratedInterval factorialOf(const DecoratedInterval& a) {
    return factorialInterval(univarIntervalRow(UnivarType::Factorial), a, AngleMode::Radians);
}

/// The quotient of factorials widened by what numbers that count as whole may move it.
DecoratedInterval countsAsWhole(const DecoratedInterval& a) {
    constexpr double kShare = 1e-8;
    return DecoratedInterval{a.lowest - std::fabs(a.lowest) * kShare,
                             a.highest + std::fabs(a.highest) * kShare, a.decoration, a.mayBeComplex}
        .atMost(Decoration::Defined);
}

DecoratedInterval exactOrNowhere(double value, const DecoratedInterval& n, const DecoratedInterval& k) {
    return std::isnan(value) ? DecoratedInterval::nowhere()
                             : widened({value, value, std::min(n.decoration, k.decoration)}, 4 * kUlps);
}

} // namespace

DecoratedInterval factorialInterval(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a,
                                    AngleMode /*mode*/) {
    if (a.lowest > -1) {
        const double atLowest = factorial(a.lowest);
        const double atHighest = factorial(a.highest);
        if (a.lowest >= kLeastAt || a.isPoint()) {
            return widened({atLowest, atHighest, a.decoration}, kUlps);
        }
        if (a.highest <= kLeastAt) {
            return widened({atHighest, atLowest, a.decoration}, kUlps);
        }
        return widened({kLeastValue, std::max(atLowest, atHighest), a.decoration}, kUlps);
    }
    const bool avoidsPoles =
        std::floor(a.lowest) != a.lowest && std::floor(a.lowest) == std::floor(a.highest);
    if (avoidsPoles) {
        return betweenPoles(a);
    }
    return a.isPoint() ? DecoratedInterval::nowhere() : DecoratedInterval::anywhere();
}

DecoratedInterval permutationsInterval(const DecoratedInterval& n, const DecoratedInterval& k) {
    if (n.isPoint() && k.isPoint()) {
        return exactOrNowhere(perm(n.lowest, k.lowest), n, k);
    }
    if (!(n.lowest > -1) || !(difference(n, k).lowest > -1)) {
        return DecoratedInterval::anywhere();
    }
    return countsAsWhole(quotient(factorialOf(n), factorialOf(difference(n, k))));
}

DecoratedInterval combinationsInterval(const DecoratedInterval& n, const DecoratedInterval& k) {
    if (n.isPoint() && k.isPoint()) {
        return exactOrNowhere(comb(n.lowest, k.lowest), n, k);
    }
    if (!(n.lowest > -1) || !(k.lowest > -1) || !(difference(n, k).lowest > -1)) {
        return DecoratedInterval::anywhere();
    }
    return countsAsWhole(quotient(factorialOf(n), product(factorialOf(k), factorialOf(difference(n, k)))));
}

} // namespace velmora
