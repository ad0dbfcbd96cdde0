#include "engine/functions/InverseTrigonometry.h"

#include "engine/numbers/DoubleDouble.h"
#include "engine/numbers/PrincipalValue.h"

#include <cmath>

namespace velmora {

namespace {

/// An angle in radians, to more digits than a double has, in degrees. Converted before it is rounded, so that
/// asin(0.5) is 30 and not the double next to it.
double inDegrees(DoubleDouble radians) {
    constexpr DoubleDouble kDegrees{0x1.ca5dc1a63c1f8p+5, -0x1.1e7ab456405f9p-49}; // 180/π
    return (radians * kDegrees).rounded();
}

} // namespace

double arcSine(double a) { return std::asin(a); }
double arcCosine(double a) { return std::acos(a); }
double arcTangent(double a) { return std::atan(a); }

// The angle that the library gives, and one step of Newton's method from there.

double arcSineInDegrees(double a) {
    constexpr double kRightAngle = 90;
    if (!(std::fabs(a) < 1)) {
        return std::fabs(a) == 1 ? std::copysign(kRightAngle, a) : std::asin(a);
    }
    const double angle = std::asin(a);
    const SineAndCosine of = sineAndCosine(angle);
    return inDegrees((a - of.sine) / of.cosine + angle);
}

double arcCosineInDegrees(double a) {
    constexpr double kHalfTurn = 180;
    if (!(std::fabs(a) < 1)) {
        return std::fabs(a) == 1 ? (a < 0 ? kHalfTurn : 0) : std::acos(a);
    }
    const double angle = std::acos(a);
    const SineAndCosine of = sineAndCosine(angle);
    return inDegrees((of.cosine - a) / of.sine + angle);
}

double arcTangentInDegrees(double a) {
    constexpr double kRightAngle = 90;
    constexpr double kAlmostInfinite = 1e17; // from where on the angle rounds to the right one
    if (!(std::fabs(a) < kAlmostInfinite)) {
        return std::isnan(a) ? a : std::copysign(kRightAngle, a);
    }
    return inDegrees(angleOf(a, 1));
}

ComplexValue complexArcSine(ComplexValue z) { return principalValue(std::asin(onPrincipalSide(z))); }
ComplexValue complexArcCosine(ComplexValue z) { return principalValue(std::acos(onPrincipalSide(z))); }
ComplexValue complexArcTangent(ComplexValue z) { return principalValue(std::atan(onPrincipalSide(z))); }

} // namespace velmora
