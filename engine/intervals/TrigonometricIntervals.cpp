#include "engine/intervals/TrigonometricIntervals.h"

#include "engine/intervals/IntervalArithmetic.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

double fullTurn(AngleMode mode) { return mode == AngleMode::Degrees ? 360 : 2 * std::numbers::pi; }

/// How far off a multiple of an eighth of a turn may be when it is formed and compared in doubles.
double doubt(const DecoratedInterval& a) {
    constexpr double kUnits = 8 * std::numeric_limits<double>::epsilon();
    return kUnits * std::max(std::fabs(a.lowest), std::fabs(a.highest));
}

/// Whether an angle offset + k · period may lie in the interval, for a whole k.
bool mayContain(const DecoratedInterval& a, double offset, double period) {
    const double lowest = a.lowest - doubt(a);
    const double highest = a.highest + doubt(a);
    if (!(highest - lowest < period)) {
        return true; // also where an end is infinite
    }
    const double k = std::ceil((lowest - offset) / period);
    const auto isWithin = [&](double angle) { return lowest <= angle && angle <= highest; };
    return isWithin(offset + k * period) || isWithin(offset + (k - 1) * period);
}

double computed(const UnivarIntervalRow& row, double a, AngleMode mode) {
    const UnivarRow& function = univarRow(row.type);
    return mode == AngleMode::Degrees ? function.realInDegrees(a) : function.real(a);
}

/// The value at an end, with 0 beside it where the angle is a zero to within its rounding.
DecoratedInterval valueAtEnd(const UnivarIntervalRow& row, double angle, AngleMode mode) {
    const double value = computed(row, angle, mode);
    DecoratedInterval range = widened(DecoratedInterval::point(value), mode == AngleMode::Degrees ? 2 : 1);
    const double inRadians = mode == AngleMode::Degrees ? angle * std::numbers::pi / 180 : angle;
    const double rounding = std::fabs(inRadians) * std::numeric_limits<double>::epsilon();
    if (angle != 0 && std::fabs(value) <= rounding) {
        range = hull(range, {-rounding, rounding});
    }
    return angle == 0 && value == 0 ? DecoratedInterval::point(0) : range;
}

/// A wave between −1 and 1 whose crest lies at the offset.
DecoratedInterval wave(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode,
                       double crestInTurns) {
    const bool isBounded = std::isfinite(a.lowest) && std::isfinite(a.highest);
    const double turn = fullTurn(mode);
    if (!isBounded) {
        return {-1, 1, Decoration::PossiblyUndefined};
    }
    const bool hasCrest = mayContain(a, crestInTurns * turn, turn);
    const bool hasTrough = mayContain(a, (crestInTurns + 0.5) * turn, turn);
    if (hasCrest && hasTrough && !a.isPoint()) {
        return {-1, 1, a.decoration};
    }
    const DecoratedInterval ends = hull(valueAtEnd(row, a.lowest, mode), valueAtEnd(row, a.highest, mode));
    return {hasTrough && !a.isPoint() ? -1 : std::max(-1.0, ends.lowest),
            hasCrest && !a.isPoint() ? 1 : std::min(1.0, ends.highest), a.decoration};
}

/// One divided by the values of the function's partner: the sine of a cosecant.
DecoratedInterval overWave(const DecoratedInterval& partner) {
    return widened(quotient(DecoratedInterval::point(1), partner), 1);
}

/// A function that rises, or falls, between poles half a turn apart.
DecoratedInterval betweenPoles(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode,
                               double poleInTurns, bool rises) {
    const double turn = fullTurn(mode);
    if (mayContain(a, poleInTurns * turn, turn / 2)) {
        return DecoratedInterval::anywhere();
    }
    const DecoratedInterval atLowest = valueAtEnd(row, a.lowest, mode);
    const DecoratedInterval atHighest = valueAtEnd(row, a.highest, mode);
    const DecoratedInterval range = rises ? DecoratedInterval{atLowest.lowest, atHighest.highest}
                                          : DecoratedInterval{atHighest.lowest, atLowest.highest};
    return widened({range.lowest, range.highest, a.decoration}, row.type == UnivarType::Cotangent ? 2 : 1);
}

} // namespace

DecoratedInterval sineInterval(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a, AngleMode mode) {
    return wave(univarIntervalRow(UnivarType::Sine), a, mode, 0.25);
}

DecoratedInterval cosineInterval(const UnivarIntervalRow& /*row*/, const DecoratedInterval& a,
                                 AngleMode mode) {
    return wave(univarIntervalRow(UnivarType::Cosine), a, mode, 0);
}

DecoratedInterval tangentInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    return betweenPoles(row, a, mode, 0.25, true);
}

DecoratedInterval cotangentInterval(const UnivarIntervalRow& row, const DecoratedInterval& a,
                                    AngleMode mode) {
    return betweenPoles(row, a, mode, 0, false);
}

DecoratedInterval cosecantInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    return overWave(sineInterval(row, a, mode));
}

DecoratedInterval secantInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode) {
    return overWave(cosineInterval(row, a, mode));
}

} // namespace velmora
