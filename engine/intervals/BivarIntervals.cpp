#include "engine/intervals/BivarIntervals.h"

#include "engine/functions/NormalDistribution.h"
#include "engine/intervals/FactorialInterval.h"
#include "engine/intervals/IntervalArithmetic.h"
#include "engine/intervals/PowerInterval.h"
#include "engine/intervals/UnivarIntervals.h"
#include "engine/numbers/IntegerFunctions.h"
#include "engine/numbers/Modulo.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// These know no complex numbers: where an input may be one, the value may be undefined, but stays real.
template <BivarIntervalRule rule>
DecoratedInterval ofReals(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (a.isEmpty() || b.isEmpty()) {
        return DecoratedInterval::nowhere();
    }
    const bool mayBeComplex = a.mayBeComplex || b.mayBeComplex;
    DecoratedInterval range = rule({a.lowest, a.highest, a.decoration}, {b.lowest, b.highest, b.decoration});
    return mayBeComplex ? range.atMost(Decoration::PossiblyUndefined) : range;
}

Decoration gradeOf(const DecoratedInterval& a, const DecoratedInterval& b) {
    return std::min(a.decoration, b.decoration);
}

double magnitude(const DecoratedInterval& a) { return std::max(std::fabs(a.lowest), std::fabs(a.highest)); }

/// A remainder that runs through its whole range, [0, |b|) or (−|b|, 0] or both.
DecoratedInterval anyRemainder(const DecoratedInterval& a, const DecoratedInterval& b, bool mayBeNegative,
                               bool mayBePositive) {
    const double bound = magnitude(b);
    const bool isUndefined = b.contains(0) || !std::isfinite(a.lowest) || !std::isfinite(a.highest);
    return DecoratedInterval{mayBeNegative ? -bound : 0, mayBePositive ? bound : 0, gradeOf(a, b)}.atMost(
        isUndefined ? Decoration::PossiblyUndefined : Decoration::Defined);
}

/// The remainders at both ends, where the interval is so narrow that the remainder only rises between them.
template <double (*remainder)(double, double)>
DecoratedInterval risingRemainder(const DecoratedInterval& a, const DecoratedInterval& b, bool& rises) {
    rises = false;
    if (!b.isPoint() || b.lowest == 0 || !std::isfinite(b.lowest) || !(a.width() < std::fabs(b.lowest))) {
        return DecoratedInterval::anywhere();
    }
    const double atLowest = remainder(a.lowest, b.lowest);
    const double atHighest = remainder(a.highest, b.lowest);
    rises = atLowest <= atHighest;
    return {atLowest, atHighest, gradeOf(a, b)};
}

DecoratedInterval moduloInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    bool rises = false;
    const DecoratedInterval range = risingRemainder<modulo>(a, b, rises);
    if (rises && (a.lowest >= 0 || a.highest <= 0)) {
        return range; // fmod is exact
    }
    return anyRemainder(a, b, a.lowest<0, a.highest> 0);
}

DecoratedInterval positiveModuloInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    bool rises = false;
    const DecoratedInterval range = risingRemainder<positiveModulo>(a, b, rises);
    if (rises) {
        return widened(range, a.lowest < 0 ? 1 : 0, {.lowest = 0});
    }
    return anyRemainder(a, b, false, true);
}

DecoratedInterval normalBetweenInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    return widened({normalBetween(a.highest, b.lowest), normalBetween(a.lowest, b.highest), gradeOf(a, b)}, 4,
                   {-1, 1});
}

/// Whole numbers only: between two points nothing is known but the bounds.
DecoratedInterval divisorInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (a.isPoint() && b.isPoint()) {
        const double value = gcd(a.lowest, b.lowest);
        return std::isnan(value) ? DecoratedInterval::nowhere()
                                 : DecoratedInterval{value, value, gradeOf(a, b)};
    }
    return {0, std::max(magnitude(a), magnitude(b)) + 1, Decoration::PossiblyUndefined};
}

DecoratedInterval multipleInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (a.isPoint() && b.isPoint()) {
        const double value = lcm(a.lowest, b.lowest);
        return std::isnan(value) ? DecoratedInterval::nowhere()
                                 : DecoratedInterval{value, value, gradeOf(a, b)};
    }
    const double bound = widened(DecoratedInterval::point(magnitude(a) * magnitude(b)), 4).highest;
    return {-bound, bound, Decoration::PossiblyUndefined};
}

DecoratedInterval minimumInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    return {std::min(a.lowest, b.lowest), std::min(a.highest, b.highest), gradeOf(a, b)};
}

DecoratedInterval maximumInterval(const DecoratedInterval& a, const DecoratedInterval& b) {
    return {std::max(a.lowest, b.lowest), std::max(a.highest, b.highest), gradeOf(a, b)};
}

DecoratedInterval undefined(const DecoratedInterval& /*a*/, const DecoratedInterval& /*b*/) {
    return DecoratedInterval::nowhere();
}

/// A comparison that holds on the whole box, nowhere on it, or on a part. One with an undefined input does
/// not hold, and is defined all the same.
DecoratedInterval comparison(const DecoratedInterval& a, const DecoratedInterval& b, bool holdsEverywhere,
                             bool holdsNowhere) {
    const bool isComplex = a.mayBeComplex || b.mayBeComplex;
    const Decoration grade = isComplex ? Decoration::PossiblyUndefined : Decoration::DefinedAndContinuous;
    const Decoration inputs = gradeOf(a, b);
    if (holdsNowhere || a.isEmpty() || b.isEmpty()) {
        return {0, 0, grade};
    }
    if (holdsEverywhere && inputs >= Decoration::Defined) {
        return {1, 1, grade};
    }
    return {0, 1, std::min(grade, Decoration::Defined)};
}

DecoratedInterval greaterOrEqual(const DecoratedInterval& a, const DecoratedInterval& b) {
    return comparison(a, b, a.lowest >= b.highest, a.highest < b.lowest);
}
DecoratedInterval greater(const DecoratedInterval& a, const DecoratedInterval& b) {
    return comparison(a, b, a.lowest > b.highest, a.highest <= b.lowest);
}
DecoratedInterval lessOrEqual(const DecoratedInterval& a, const DecoratedInterval& b) {
    return greaterOrEqual(b, a);
}
DecoratedInterval less(const DecoratedInterval& a, const DecoratedInterval& b) { return greater(b, a); }

struct BivarIntervalRow {
    BivarType type;
    BivarIntervalRule rule;
};

using enum BivarType;

constexpr std::array kBivarIntervalTable{
    BivarIntervalRow{Add, sum},
    BivarIntervalRow{Subtract, difference},
    BivarIntervalRow{Multiply, product},
    BivarIntervalRow{Divide, quotient},
    BivarIntervalRow{Power, powerInterval},
    BivarIntervalRow{LogarithmToBase, logarithmInterval},
    BivarIntervalRow{Permutations, ofReals<permutationsInterval>},
    BivarIntervalRow{Combinations, ofReals<combinationsInterval>},
    BivarIntervalRow{Modulo, ofReals<moduloInterval>},
    BivarIntervalRow{PositiveModulo, ofReals<positiveModuloInterval>},
    BivarIntervalRow{NthRoot, nthRootInterval},
    BivarIntervalRow{NormalBetween, ofReals<normalBetweenInterval>},
    BivarIntervalRow{LeastCommonMultiple, ofReals<multipleInterval>},
    BivarIntervalRow{GreatestCommonDivisor, ofReals<divisorInterval>},
    BivarIntervalRow{Minimum, ofReals<minimumInterval>},
    BivarIntervalRow{Maximum, ofReals<maximumInterval>},
    BivarIntervalRow{BesselJ, undefined},
    BivarIntervalRow{BesselY, undefined},
    BivarIntervalRow{GreaterOrEqual, greaterOrEqual},
    BivarIntervalRow{Greater, greater},
    BivarIntervalRow{LessOrEqual, lessOrEqual},
    BivarIntervalRow{Less, less},
    BivarIntervalRow{NoOperator, undefined},
};

constexpr const BivarIntervalRow& row(BivarType type) {
    return kBivarIntervalTable[static_cast<std::size_t>(type)];
}
static_assert(std::ranges::all_of(kBivarIntervalTable,
                                  [](const BivarIntervalRow& r) { return &row(r.type) == &r; }) &&
                  kBivarIntervalTable.size() == static_cast<std::size_t>(NoOperator) + 1,
              "rows stand in the order of BivarType");

} // namespace

BivarIntervalRule bivarIntervalRule(BivarType type) { return row(type).rule; }

} // namespace velmora
