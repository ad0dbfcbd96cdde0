#include "engine/numbers/Power.h"

#include "engine/numbers/IntegerPower.h"

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
ExtendedComplex pointAtHalfTurns(double halfTurns) {
    const double inCircle = std::fmod(halfTurns, 2);        // exact
    const double quarter = std::round(2 * inCircle);        // −4 to 4
    const Extended rest = Extended{inCircle} - quarter / 2; // within an eighth of a circle
    const Extended cosine = std::cos(kExtendedPi * rest);
    const Extended sine = std::sin(kExtendedPi * rest);
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
ExtendedComplex inDirection(Extended modulus, ExtendedComplex direction) {
    if (modulus == 0) {
        return 0;
    }
    return {direction.real() == 0 ? 0 : modulus * direction.real(),
            direction.imag() == 0 ? 0 : modulus * direction.imag()};
}

ComplexValue powerOfNegative(double a, double b) {
    return rounded(inDirection(std::pow(-a, b), pointAtHalfTurns(b)));
}

} // namespace

bool realPowerApplies(double a, double b) { return !(a < 0) || isWhole(b) || std::isnan(b); }

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
    return principalPower(z, extended(w));
}

ComplexValue principalPower(ComplexValue base, ExtendedComplex exponent) {
    const ExtendedComplex logarithm = std::log(extended(base));
    ExtendedComplex product;
    if (exponent.imag() == 0) { // by parts, for 0 times an infinite part would be NaN
        product = {exponent.real() * logarithm.real(), exponent.real() * logarithm.imag()};
    } else if (logarithm.imag() == 0) {
        product = {exponent.real() * logarithm.real(), exponent.imag() * logarithm.real()};
    } else {
        product = exponent * logarithm;
    }
    return rounded(
        inDirection(std::exp(product.real()), {std::cos(product.imag()), std::sin(product.imag())}));
}

} // namespace velmora
