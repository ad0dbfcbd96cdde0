#pragma once

#include "engine/numbers/ComplexValue.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmora {

/// How far a value is from its reference, in units of the last place of the reference; the modulus counts for
/// a complex one. Infinite when only one of them is a number, 0 when both are NaN.
inline double ulpDistance(ComplexValue value, ComplexValue reference) {
    if (isNaN(reference) || isNaN(value)) {
        return isNaN(reference) && isNaN(value) ? 0 : std::numeric_limits<double>::infinity();
    }
    if (value == reference) {
        return 0;
    }
    const double modulus = std::abs(reference);
    if (!std::isfinite(modulus)) {
        return std::numeric_limits<double>::infinity();
    }
    const int exponent =
        std::max(modulus == 0 ? 0 : std::ilogb(modulus), std::numeric_limits<double>::min_exponent - 1);
    return std::ldexp(std::abs(value - reference), std::numeric_limits<double>::digits - 1 - exponent);
}

} // namespace velmora
