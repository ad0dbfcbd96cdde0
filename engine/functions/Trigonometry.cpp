#include "engine/functions/Trigonometry.h"

#include "engine/numbers/PrincipalValue.h"
#include "engine/numbers/Quotient.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace velmora {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Whether a function of an angle that vanishes there, with slope 1 or −1, shows by its value that the angle
/// is a multiple of π/2 but for its own rounding. No double is such a multiple, yet a user who types one
/// means it. The angle 0 needs no such care, and far out neighbouring doubles are too far apart to mean
/// anything.
bool isNearZero(double value, double angle) {
    constexpr double kFarthest = 1'000'000.25 * (std::numbers::pi / 2);
    return std::fabs(value) <= std::fabs(angle) * std::numeric_limits<double>::epsilon() &&
           std::fabs(angle) <= kFarthest;
}

bool isNearPole(double tangent, double angle) {
    return std::fabs(tangent) > 1 && isNearZero(1 / tangent, angle);
}

/// An angle as a whole number of quarter turns round the circle and the rest, within ±45°. Both are exact.
struct QuarterTurns {
    explicit QuarterTurns(double degrees) {
        const double inCircle = std::fmod(degrees, 360);
        if (!std::isfinite(inCircle)) {
            rest = kNaN;
            return;
        }
        const double nearest = std::round(inCircle / 90);
        count = (static_cast<int>(nearest) + 4) % 4;
        rest = inCircle - nearest * 90;
    }
    bool isOdd() const { return count % 2 == 1; }

    int count = 0;
    double rest;
};

double radians(double degrees) { return degrees * (std::numbers::pi / 180); }

// Of an angle within ±45°, in degrees. The rational values are exact.

double sineOfRest(double rest) {
    return std::fabs(rest) == 30 ? std::copysign(0.5, rest) : std::sin(radians(rest));
}

double cosineOfRest(double rest) {
    // As sin(45), whose neighbour the rounding of π/4 would lead to.
    return std::fabs(rest) == 45 ? std::numbers::sqrt2 / 2 : std::cos(radians(rest));
}

double tangentOfRest(double rest) {
    return std::fabs(rest) == 45 ? std::copysign(1.0, rest) : std::tan(radians(rest));
}

} // namespace

double sine(double a) {
    const double value = std::sin(a);
    return isNearZero(value, a) && a != 0 ? 0 : value;
}

double cosine(double a) {
    const double value = std::cos(a);
    return isNearZero(value, a) ? 0 : value;
}

double tangent(double a) {
    const double value = std::tan(a);
    if (isNearZero(value, a) && a != 0) {
        return 0;
    }
    return isNearPole(value, a) ? kNaN : value;
}

double cosecant(double a) { return reciprocal(sine(a)); }
double secant(double a) { return reciprocal(cosine(a)); }

double cotangent(double a) {
    const double value = std::tan(a);
    if (isNearZero(value, a)) {
        return kNaN;
    }
    return isNearPole(value, a) ? 0 : 1 / value;
}

// Adding 0 turns a minus zero into 0.

double sineOfDegrees(double degrees) {
    const QuarterTurns turns(degrees);
    const double value = turns.isOdd() ? cosineOfRest(turns.rest) : sineOfRest(turns.rest);
    return (turns.count < 2 ? value : -value) + 0.0;
}

double cosineOfDegrees(double degrees) {
    const QuarterTurns turns(degrees);
    const double value = turns.isOdd() ? sineOfRest(turns.rest) : cosineOfRest(turns.rest);
    return (turns.count == 1 || turns.count == 2 ? -value : value) + 0.0;
}

double tangentOfDegrees(double degrees) {
    const QuarterTurns turns(degrees);
    const double value = tangentOfRest(turns.rest);
    return turns.isOdd() ? -reciprocal(value) : value + 0.0;
}

double cosecantOfDegrees(double degrees) { return reciprocal(sineOfDegrees(degrees)); }
double secantOfDegrees(double degrees) { return reciprocal(cosineOfDegrees(degrees)); }

double cotangentOfDegrees(double degrees) {
    const QuarterTurns turns(degrees);
    const double value = tangentOfRest(turns.rest);
    return turns.isOdd() ? -value + 0.0 : reciprocal(value);
}

ComplexValue complexSine(ComplexValue z) { return principalValue(std::sin(onPrincipalSide(z))); }
ComplexValue complexCosine(ComplexValue z) { return principalValue(std::cos(onPrincipalSide(z))); }
ComplexValue complexTangent(ComplexValue z) { return principalValue(std::tan(onPrincipalSide(z))); }
ComplexValue complexCosecant(ComplexValue z) {
    return principalValue(reciprocal(std::sin(onPrincipalSide(z))));
}
ComplexValue complexSecant(ComplexValue z) {
    return principalValue(reciprocal(std::cos(onPrincipalSide(z))));
}
ComplexValue complexCotangent(ComplexValue z) {
    return principalValue(reciprocal(std::tan(onPrincipalSide(z))));
}

} // namespace velmora
