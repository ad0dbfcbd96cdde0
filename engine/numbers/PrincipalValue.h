#pragma once

#include "engine/numbers/ComplexValue.h"

#include <cmath>

namespace velmora {

// Around every function of the library with branch cuts.

/// The number with plus zeros for minus zeros, so that a number on a branch cut always stands on the side
/// that the principal value belongs to, however it was computed.
inline ComplexValue onPrincipalSide(ComplexValue z) { return {z.real() + 0.0, z.imag() + 0.0}; }

/// The value of a complex function: undefined when a part is NaN, without a minus zero in the imaginary part.
inline ComplexValue principalValue(ComplexValue z) {
    return isNaN(z) ? undefinedValue() : ComplexValue(z.real(), z.imag() + 0.0);
}

} // namespace velmora
