#pragma once

#include <cmath>
#include <complex>
#include <limits>

namespace velmora {

/// Every number of the engine: a real and an imaginary double, passed by value.
using ComplexValue = std::complex<double>;

/// The magnitude below which a part of a displayed complex number counts as nothing.
inline constexpr double kComplexDisplayTolerance = 1e-11;

/// The value of what cannot be computed: a real NaN, shown as "Undefined".
inline ComplexValue undefinedValue() { return {std::numeric_limits<double>::quiet_NaN(), 0.0}; }

/// Exactly real: the imaginary part compares equal to 0.
inline bool isReal(ComplexValue z) { return z.imag() == 0; }

/// Real but for rounding: the imaginary part lies strictly within ±1e-11. False for a NaN part.
inline bool isAlmostReal(ComplexValue z) {
    return z.imag() > -kComplexDisplayTolerance && z.imag() < kComplexDisplayTolerance;
}

/// True when either part is NaN.
inline bool isNaN(ComplexValue z) { return std::isnan(z.real()) || std::isnan(z.imag()); }

} // namespace velmora
