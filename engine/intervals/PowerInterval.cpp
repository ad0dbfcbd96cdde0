#include "engine/intervals/PowerInterval.h"

#include "engine/intervals/IntervalArithmetic.h"
#include "engine/intervals/UnivarIntervals.h"
#include "engine/numbers/Power.h"
#include "engine/numbers/Roots.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr RealInterval kNotNegative{.lowest = 0};

DecoratedInterval ofEnds(double one, double other, Decoration grade, const RealInterval& values = {}) {
    return widened({std::min(one, other), std::max(one, other), grade}, 1, values);
}

/// Of a base that is not negative, for a fixed exponent: rising, or falling from infinity.
DecoratedInterval powerOfPositive(const DecoratedInterval& base, double exponent, Decoration grade) {
    const bool hasPole = exponent < 0 && base.lowest == 0;
    const double least = base.lowest + 0.0; // a minus zero has its infinity on the other side
    const DecoratedInterval range =
        ofEnds(realPower(least, exponent), realPower(base.highest, exponent), grade, kNotNegative);
    return hasPole ? range.atMost(Decoration::PossiblyUndefined) : range;
}

DecoratedInterval wholePower(const DecoratedInterval& base, double exponent, Decoration grade) {
    const bool isEven = std::fmod(exponent, 2) == 0;
    if (base.lowest >= 0) {
        return powerOfPositive(base, exponent, grade);
    }
    if (base.highest <= 0) {
        const DecoratedInterval mirrored = powerOfPositive(negative(base), exponent, grade);
        return isEven ? mirrored : negative(mirrored);
    }
    const DecoratedInterval left = wholePower({base.lowest, 0}, exponent, grade);
    const DecoratedInterval right = wholePower({0, base.highest}, exponent, grade);
    return hull(left, right);
}

/// The power is monotone in each input while the other one stays, so its extremes lie at the corners.
DecoratedInterval powerAtCorners(const DecoratedInterval& base, const DecoratedInterval& exponent,
                                 Decoration grade) {
    const std::array corners{
        realPower(base.lowest, exponent.lowest), realPower(base.lowest, exponent.highest),
        realPower(base.highest, exponent.lowest), realPower(base.highest, exponent.highest)};
    const auto [least, greatest] = std::ranges::minmax(corners);
    return ofEnds(least, greatest, grade, kNotNegative);
}

DecoratedInterval powerWithExponents(const DecoratedInterval& base, const DecoratedInterval& exponent,
                                     Decoration grade) {
    if (base.lowest > 0 && std::isfinite(base.highest) && std::isfinite(exponent.width())) {
        return powerAtCorners(base, exponent, grade);
    }
    if (base.lowest >= 0) {
        return {0, kInfinity, Decoration::PossiblyUndefined};
    }
    // A negative base has a real power only where the exponent is whole, of either sign.
    const double far = std::max(std::fabs(base.lowest), std::fabs(base.highest));
    const double near = base.contains(0) ? 0 : std::min(std::fabs(base.lowest), std::fabs(base.highest));
    const DecoratedInterval magnitude =
        powerWithExponents({near, far}, exponent, Decoration::PossiblyUndefined);
    return {-magnitude.highest, magnitude.highest, Decoration::PossiblyUndefined, true};
}

/// The root of radicands that are all positive.
DecoratedInterval rootOfPositive(double degree, const DecoratedInterval& radicand, Decoration grade) {
    return widened({std::min(nthRoot(degree, radicand.lowest), nthRoot(degree, radicand.highest)),
                    std::max(nthRoot(degree, radicand.lowest), nthRoot(degree, radicand.highest)), grade},
                   1, kNotNegative);
}

} // namespace

DecoratedInterval powerInterval(const DecoratedInterval& base, const DecoratedInterval& exponent) {
    if (base.mayBeComplex || exponent.mayBeComplex) {
        return DecoratedInterval::unknown();
    }
    if (base.isEmpty() || exponent.isEmpty()) {
        return DecoratedInterval::nowhere();
    }
    const Decoration grade = std::min(base.decoration, exponent.decoration);
    if (!exponent.isPoint()) {
        return powerWithExponents(base, exponent, grade);
    }
    const double power = exponent.lowest;
    if (power == 0) {
        return DecoratedInterval::point(1).atMost(grade);
    }
    if (power == 1) {
        return base.atMost(grade);
    }
    if (power == 2) {
        return square(base).atMost(grade);
    }
    if (power == 3) {
        return cube(base).atMost(grade);
    }
    if (!std::isfinite(power)) {
        return DecoratedInterval::anywhere();
    }
    if (std::trunc(power) == power) {
        return wholePower(base, power, grade);
    }
    if (base.highest < 0) {
        return DecoratedInterval::nowhere(true);
    }
    DecoratedInterval range = powerOfPositive({std::max(0.0, base.lowest), base.highest}, power, grade);
    if (base.lowest < 0) {
        range.decoration = Decoration::PossiblyUndefined;
        range.mayBeComplex = true;
    }
    return range;
}

DecoratedInterval nthRootInterval(const DecoratedInterval& degree, const DecoratedInterval& radicand) {
    if (degree.mayBeComplex || radicand.mayBeComplex) {
        return DecoratedInterval::unknown();
    }
    if (degree.isEmpty() || radicand.isEmpty()) {
        return DecoratedInterval::nowhere();
    }
    if (!degree.isPoint() || !std::isfinite(degree.lowest) || !std::isfinite(radicand.width())) {
        return DecoratedInterval::anywhere();
    }
    if (degree.lowest == 0) {
        return DecoratedInterval::nowhere();
    }
    const Decoration grade = std::min(degree.decoration, radicand.decoration);
    constexpr double kLeast = std::numeric_limits<double>::denorm_min(); // the root of 0 is undefined
    DecoratedInterval range = DecoratedInterval::nowhere();
    if (radicand.highest > 0) {
        range = rootOfPositive(degree.lowest, {std::max(kLeast, radicand.lowest), radicand.highest}, grade);
    }
    const double whole = degree.lowest == 3 ? 3 : std::trunc(degree.lowest);
    if (radicand.lowest < 0 && std::fabs(std::fmod(whole, 2)) == 1) {
        const DecoratedInterval mirrored =
            rootOfPositive(whole, {std::max(kLeast, -radicand.highest), -radicand.lowest}, grade);
        range = range.isEmpty() ? negative(mirrored) : hull(range, negative(mirrored));
        range.decoration = grade;
    }
    const bool avoidsZero = radicand.lowest > 0 || (radicand.highest < 0 && !range.isEmpty());
    return avoidsZero ? range : range.atMost(Decoration::PossiblyUndefined);
}

DecoratedInterval logarithmInterval(const DecoratedInterval& base, const DecoratedInterval& number) {
    const UnivarIntervalRow& logarithm = univarIntervalRow(UnivarType::NaturalLogarithm);
    return widened(quotient(univarInterval(logarithm, number, AngleMode::Radians),
                            univarInterval(logarithm, base, AngleMode::Radians)),
                   1);
}

} // namespace velmora
