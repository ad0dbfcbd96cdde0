#pragma once

#include "engine/numbers/ComplexValue.h"

#include <cmath>
#include <complex>

namespace velmora {

/// The machine's widest floating type. Where a function magnifies the rounding of an intermediate step (an
/// exponent, a quotient of logarithms, a tail), that step is carried in it, so that what remains after
/// rounding to double is the rounding to double. Where it is no wider than double the results merely lose a
/// few last bits.
using Extended = long double;
using ExtendedComplex = std::complex<Extended>;

inline constexpr Extended kExtendedPi = 3.141592653589793238462643383279502884L;
inline constexpr Extended kExtendedLn10 = 2.302585092994045684017991454684364208L;
inline constexpr Extended kExtendedSqrtHalf = 0.707106781186547524400844362104849039L;
inline constexpr Extended kExtendedSqrtTwoPi = 2.506628274631000502415765284811045253L;

/// The same number with more bits. A minus zero becomes plus zero, so that a number on a branch cut always
/// stands on the side that the principal value belongs to, however it was computed.
inline ExtendedComplex extended(ComplexValue z) {
    return {Extended{z.real()} + 0.0L, Extended{z.imag()} + 0.0L};
}

/// The nearest double value, without a minus zero in the imaginary part; undefined when a part is NaN.
inline ComplexValue rounded(ExtendedComplex z) {
    if (std::isnan(z.real()) || std::isnan(z.imag())) {
        return undefinedValue();
    }
    return {static_cast<double>(z.real()), static_cast<double>(z.imag()) + 0.0};
}

} // namespace velmora
