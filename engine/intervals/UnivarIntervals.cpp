#include "engine/intervals/UnivarIntervals.h"

#include "engine/intervals/FactorialInterval.h"
#include "engine/intervals/IntervalArithmetic.h"
#include "engine/intervals/TrigonometricIntervals.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

double computed(const UnivarIntervalRow& row, double a, AngleMode mode) {
    const UnivarRow& function = univarRow(row.type);
    return mode == AngleMode::Degrees && function.realInDegrees != nullptr ? function.realInDegrees(a)
                                                                           : function.real(a);
}

DecoratedInterval fromEnds(const UnivarIntervalRow& row, double lowest, double highest,
                           const DecoratedInterval& a) {
    return widened({lowest, highest, a.decoration, a.mayBeComplex}, row.ulps, row.values);
}

/// A zero of these functions is never the rounding of another value, unless 0 is their bound; kept exact, it
/// leaves sqrt(sqrt(x)) defined from 0 on.
DecoratedInterval increasing(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    const double lowest = computed(row, a.lowest, mode);
    const double highest = computed(row, a.highest, mode);
    DecoratedInterval range = fromEnds(row, lowest, highest, a);
    range.lowest = lowest == 0 ? 0 : range.lowest;
    range.highest = highest == 0 && row.values.lowest != 0 ? 0 : range.highest;
    return range;
}

DecoratedInterval decreasing(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    return fromEnds(row, computed(row, a.highest, mode), computed(row, a.lowest, mode), a);
}

/// An even function that rises with the distance from 0, or falls with it.
DecoratedInterval risingFromZero(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    const double far = std::max(std::fabs(a.lowest), std::fabs(a.highest));
    const double near = a.contains(0) ? 0 : std::min(std::fabs(a.lowest), std::fabs(a.highest));
    return increasing(row, {near, far, a.decoration}, mode);
}

DecoratedInterval fallingFromZero(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    const double far = std::max(std::fabs(a.lowest), std::fabs(a.highest));
    const double near = a.contains(0) ? 0 : std::min(std::fabs(a.lowest), std::fabs(a.highest));
    return decreasing(row, {near, far, a.decoration}, mode);
}

/// csch and coth: falling on either side of a pole at 0.
DecoratedInterval fallingBesidePole(const UnivarIntervalRow& row, const DecoratedInterval& a,
                                    AngleMode mode) {
    if (!a.contains(0)) {
        return decreasing(row, a, mode);
    }
    if (a.isPoint()) {
        return DecoratedInterval::nowhere();
    }
    if (a.lowest < 0 && a.highest > 0) {
        return DecoratedInterval::anywhere();
    }
    const double end = computed(row, a.lowest == 0 ? a.highest : a.lowest, mode);
    const DecoratedInterval oneSide = widened(DecoratedInterval::point(end), row.ulps);
    return a.lowest == 0 ? DecoratedInterval{oneSide.lowest, kInfinity, Decoration::PossiblyUndefined}
                         : DecoratedInterval{-kInfinity, oneSide.highest, Decoration::PossiblyUndefined};
}

DecoratedInterval absolute(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a, AngleMode /*mode*/) {
    const double far = std::max(std::fabs(a.lowest), std::fabs(a.highest));
    const double near = a.contains(0) ? 0 : std::min(std::fabs(a.lowest), std::fabs(a.highest));
    return {near, far, a.decoration};
}

DecoratedInterval negated(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a, AngleMode /*mode*/) {
    return negative(a);
}

DecoratedInterval same(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a, AngleMode /*mode*/) {
    return a;
}

DecoratedInterval zero(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a, AngleMode /*mode*/) {
    return {0, 0, a.decoration};
}

/// Rounding is exact and rises in steps; over one step it is constant.
DecoratedInterval steps(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    const DecoratedInterval range{computed(row, a.lowest, mode), computed(row, a.highest, mode),
                                  a.decoration};
    return range.isPoint() ? range : range.atMost(Decoration::Defined);
}

DecoratedInterval argumentOf(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    const DecoratedInterval range{computed(row, a.highest, mode), computed(row, a.lowest, mode),
                                  a.decoration};
    return range.isPoint() ? range : range.atMost(Decoration::Defined);
}

/// A whole number below the bound, another one at each evaluation.
DecoratedInterval random(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a, AngleMode /*mode*/) {
    const double bound = std::round(std::max(std::fabs(a.lowest), std::fabs(a.highest)));
    return DecoratedInterval{0, std::max(0.0, bound - 1), a.decoration}.atMost(
        std::isfinite(bound) ? Decoration::Defined : Decoration::PossiblyUndefined);
}

/// A fraction stands for every number that comes close enough to it; the farthest lie 1e-5 off.
DecoratedInterval nearFraction(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a,
                               AngleMode /*mode*/) {
    constexpr double kFarthest = 1e-5;
    return widened({a.lowest - kFarthest, a.highest + kFarthest, a.decoration}, 1)
        .atMost(Decoration::Defined);
}

/// The atmosphere is a formula a layer, rising or falling within each, and leaps by a rounding of its tables
/// between two.
DecoratedInterval layered(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    constexpr std::array kUpperBounds{11000.0, 20000.0, 32000.0, 47000.0, 51000.0, 71000.0};
    DecoratedInterval range = widened(DecoratedInterval::point(computed(row, a.lowest, mode)), row.ulps);
    const auto include = [&](double altitude) {
        range = hull(range, widened(DecoratedInterval::point(computed(row, altitude, mode)), row.ulps));
    };
    include(a.highest);
    bool staysInLayer = true;
    for (const double bound : kUpperBounds) {
        if (a.lowest <= bound && a.highest > bound) {
            include(bound);
            include(nextAbove(bound));
            staysInLayer = false;
        }
    }
    return {range.lowest, range.highest,
            std::min(a.decoration, staysInLayer ? Decoration::DefinedAndContinuous : Decoration::Defined)};
}

DecoratedInterval undefined(const UnivarIntervalRow& /*row*/, const DecoratedInterval& /*a*/,
                            AngleMode /*mode*/) {
    return DecoratedInterval::nowhere();
}

/// Called only by the program, which knows the equation.
DecoratedInterval ofEquation(const UnivarIntervalRow& /*row*/, const DecoratedInterval& /*a*/,
                             AngleMode /*mode*/) {
    return DecoratedInterval::unknown();
}

using enum UnivarType;
constexpr RealInterval kEverywhere{};
constexpr RealInterval kUnit{-1, 1};
constexpr RealInterval kNotNegative{.lowest = 0};
constexpr RealInterval kFrom0To1{0, 1};
constexpr RealInterval kFrom1{.lowest = 1};
constexpr RealInterval kAirTemperatures{-273.15, 1000000};
constexpr RealInterval kAltitudes{-2000, 84852};

// clang-format off
constexpr std::array kUnivarIntervalTable{
    UnivarIntervalRow{NoFunction, undefined},
    UnivarIntervalRow{AbsoluteValue, absolute},
    UnivarIntervalRow{Sine, sineInterval, kEverywhere, kUnit},
    UnivarIntervalRow{Cosine, cosineInterval, kEverywhere, kUnit},
    UnivarIntervalRow{Tangent, tangentInterval},
    UnivarIntervalRow{ArcSine, increasing, kUnit},
    UnivarIntervalRow{ArcCosine, decreasing, kUnit, kNotNegative},
    UnivarIntervalRow{ArcTangent, increasing},
    UnivarIntervalRow{Cosecant, cosecantInterval},
    UnivarIntervalRow{Secant, secantInterval},
    UnivarIntervalRow{Cotangent, cotangentInterval},
    UnivarIntervalRow{HyperbolicCosine, risingFromZero, kEverywhere, kFrom1},
    UnivarIntervalRow{HyperbolicSine, increasing, kEverywhere, kEverywhere, 2},
    UnivarIntervalRow{HyperbolicTangent, increasing, kEverywhere, kUnit, 2},
    UnivarIntervalRow{HyperbolicCotangent, fallingBesidePole, kEverywhere, kEverywhere, 3},
    UnivarIntervalRow{HyperbolicSecant, fallingFromZero, kEverywhere, kFrom0To1, 3},
    UnivarIntervalRow{HyperbolicCosecant, fallingBesidePole, kEverywhere, kEverywhere, 3},
    UnivarIntervalRow{NaturalLogarithm, increasing, kNotNegative},
    UnivarIntervalRow{CommonLogarithm, increasing, kNotNegative, kEverywhere, 2},
    UnivarIntervalRow{CubeRoot, increasing},
    UnivarIntervalRow{SquareRoot, increasing, kNotNegative, kNotNegative},
    UnivarIntervalRow{Factorial, factorialInterval, kEverywhere, kEverywhere, 4},
    UnivarIntervalRow{Negation, negated},
    UnivarIntervalRow{Random, random},
    UnivarIntervalRow{Round, steps},
    UnivarIntervalRow{SpeedOfSound, increasing, kAirTemperatures, kNotNegative, 2},
    UnivarIntervalRow{AtmosphereTemperature, layered, kAltitudes, kEverywhere, 4},
    UnivarIntervalRow{AtmospherePressure, layered, kAltitudes, kNotNegative, 64},
    UnivarIntervalRow{AtmosphereDensitySlugs, layered, kAltitudes, kNotNegative, 64},
    UnivarIntervalRow{AtmosphereDensity, layered, kAltitudes, kNotNegative, 64},
    UnivarIntervalRow{Bell, fallingFromZero, kEverywhere, kFrom0To1, 2},
    UnivarIntervalRow{CumulativeNormal, increasing, kEverywhere, kFrom0To1, 2},
    UnivarIntervalRow{UserDefined, ofEquation},
    UnivarIntervalRow{ToFraction, nearFraction},
    UnivarIntervalRow{ToMixedNumber, nearFraction},
    UnivarIntervalRow{RoundUp, steps},
    UnivarIntervalRow{RoundDown, steps},
    UnivarIntervalRow{RealPart, same},
    UnivarIntervalRow{ImaginaryPart, zero},
    UnivarIntervalRow{Conjugate, same},
    UnivarIntervalRow{Argument, argumentOf},
    UnivarIntervalRow{ErrorFunction, increasing, kEverywhere, kUnit},
};
// clang-format on

constexpr const UnivarIntervalRow& row(UnivarType type) {
    return kUnivarIntervalTable[static_cast<std::size_t>(type)];
}
static_assert(std::ranges::all_of(kUnivarIntervalTable,
                                  [](const UnivarIntervalRow& r) { return &row(r.type) == &r; }) &&
                  kUnivarIntervalTable.size() == static_cast<std::size_t>(ErrorFunction) + 1,
              "rows stand in the order of UnivarType");

} // namespace

const UnivarIntervalRow& univarIntervalRow(UnivarType type) { return row(type); }

DecoratedInterval widened(DecoratedInterval a, int ulps, const RealInterval& values) {
    for (int i = 0; i < ulps; ++i) {
        a.lowest = nextBelow(a.lowest);
        a.highest = nextAbove(a.highest);
    }
    a.lowest = std::max(a.lowest, values.lowest);
    a.highest = std::min(a.highest, values.highest);
    return a;
}

DecoratedInterval univarInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    const bool knowsComplex = univarRow(row.type).complex != nullptr;
    if (a.mayBeComplex && knowsComplex && row.type != Negation) {
        return DecoratedInterval::unknown();
    }
    if (a.isEmpty()) {
        return DecoratedInterval::nowhere(a.mayBeComplex && knowsComplex);
    }
    const bool isInside = row.domain.contains(a.lowest) && row.domain.contains(a.highest);
    if (isInside && !a.mayBeComplex) {
        return row.rule(row, a, mode);
    }
    DecoratedInterval inside{std::max(a.lowest, row.domain.lowest), std::min(a.highest, row.domain.highest),
                             a.decoration};
    const bool becomesComplex = knowsComplex && (!isInside || a.mayBeComplex);
    if (!(inside.lowest <= inside.highest)) {
        return DecoratedInterval::nowhere(becomesComplex);
    }
    DecoratedInterval range = row.rule(row, inside, mode).atMost(Decoration::PossiblyUndefined);
    range.mayBeComplex = range.mayBeComplex || becomesComplex;
    return range;
}

} // namespace velmora
