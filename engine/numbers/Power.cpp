#include "engine/numbers/Power.h"

#include "engine/numbers/IntegerPower.h"
#include "engine/numbers/PrincipalValue.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace velmora {

namespace {

bool isWhole(double x) { return std::trunc(x) == x; }

bool isWholeWithin32Bits(ComplexValue w) {
    return isReal(w) && isWhole(w.real()) && w.real() >= std::numeric_limits<std::int32_t>::min() &&
           w.real() <= std::numeric_limits<std::int32_t>::max();
}

/// (cos, sin) of that many half turns, exact at the quarters of a circle.
ComplexValue pointAtHalfTurns(double halfTurns) {
    const double inCircle = std::fmod(halfTurns, 2); // exact
    const double quarter = std::round(2 * inCircle); // −4 to 4
    const double rest = inCircle - quarter / 2;      // within an eighth of a circle, and exact
    const DoubleDouble angle = kDoubleDoublePi * rest;
    const double cosine = std::cos(angle.high) - angle.low * std::sin(angle.high);
    const double sine = std::sin(angle.high) + angle.low * std::cos(angle.high);
    switch ((static_cast<int>(quarter) + 4) % 4) {
    case 1:
        return {-sine, cosine};
    case 2:
        return {-cosine, -sine};
    case 3:
        return {sine, -cosine};
    default:
        return {cosine, sine};
    }
}

/// The number of that modulus in that direction. A part without direction is 0 however large the modulus, and
/// with no modulus the direction does not count.
ComplexValue inDirection(double modulus, ComplexValue direction) {
    if (modulus == 0) {
        return 0;
    }
    return {direction.real() == 0 ? 0 : modulus * direction.real(),
            direction.imag() == 0 ? 0 : modulus * direction.imag()};
}

ComplexValue powerOfNegative(double a, double b) {
    return principalValue(inDirection(std::pow(-a, b), pointAtHalfTurns(b)));
}

/// A complex number with the digits that an exponential magnifies.
struct PreciseLogarithm {
    DoubleDouble real;
    DoubleDouble imaginary;
};

/// The principal logarithm of a finite number other than 0.
PreciseLogarithm preciseLogarithm(ComplexValue z) {
    const int exponent = std::ilogb(std::max(std::fabs(z.real()), std::fabs(z.imag())));
    const double real = std::ldexp(z.real(), -exponent);
    const double imaginary = std::ldexp(z.imag(), -exponent);
    const DoubleDouble norm = exactProduct(real, real) + exactProduct(imaginary, imaginary);
    return {kDoubleDoubleLn2 * static_cast<double>(exponent) + scaledByTwo(naturalLogarithm(norm), 0.5),
            angleOf(z.imag() + 0.0, z.real() + 0.0)};
}

/// e^(real + imaginary·i).
ComplexValue exponentialOf(DoubleDouble real, DoubleDouble imaginary) {
    constexpr double kManyTurns = 1e5; // whose number would take the digits of what is left over
    if (!std::isfinite(real.high) || !(std::fabs(imaginary.high) < kManyTurns)) {
        const double angle = imaginary.high;
        return principalValue(inDirection(std::exp(real.high), {std::cos(angle), std::sin(angle)}));
    }
    const SineAndCosine direction = sineAndCosine(imaginary);
    return principalValue(
        inDirection(exponential(real).rounded(), {direction.cosine.rounded(), direction.sine.rounded()}));
}

} // namespace

bool realPowerApplies(double a, double b) { return !(a < 0) || isWhole(b) || std::isnan(b) || std::isinf(a); }

double realPower(double a, double b) {
    // By multiplication, for polynomials are what is drawn most; NaN passes through as it must.
    if (b == 2) {
        return a * a;
    }
    if (b == 3) {
        return a * a * a;
    }
    if (b == 1) {
        return a;
    }
    return std::isnan(a) || std::isnan(b) ? std::numeric_limits<double>::quiet_NaN() : std::pow(a, b);
}

ComplexValue complexPower(ComplexValue z, ComplexValue w) {
    if (isNaN(z) || isNaN(w)) {
        return undefinedValue();
    }
    if (isReal(z) && isReal(w)) {
        return realPowerApplies(z.real(), w.real()) ? ComplexValue(realPower(z.real(), w.real()))
                                                    : powerOfNegative(z.real(), w.real());
    }
    if (isWholeWithin32Bits(w)) {
        return integerPower(z, static_cast<std::int32_t>(w.real()));
    }
    if (z == 0.0) {
        return w.real() > 0 ? 0 : undefinedValue();
    }
    return principalPower(z, w);
}

ComplexValue principalPower(ComplexValue base, ComplexValue exponent) {
    if (!std::isfinite(std::abs(base)) || !std::isfinite(std::abs(exponent))) {
        return principalValue(std::exp(exponent * std::log(onPrincipalSide(base))));
    }
    const PreciseLogarithm logarithm = preciseLogarithm(base);
    return exponentialOf(logarithm.real * exponent.real() - logarithm.imaginary * exponent.imag(),
                         logarithm.imaginary * exponent.real() + logarithm.real * exponent.imag());
}

ComplexValue principalPower(ComplexValue base, DoubleDouble exponent) {
    if (!std::isfinite(std::abs(base)) || !std::isfinite(exponent.high)) {
        return principalPower(base, ComplexValue(exponent.high));
    }
    const PreciseLogarithm logarithm = preciseLogarithm(base);
    return exponentialOf(logarithm.real * exponent, logarithm.imaginary * exponent);
}

} // namespace velmora
