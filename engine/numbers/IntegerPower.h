#pragma once

#include "engine/numbers/ComplexValue.h"

#include <cstdint>

namespace velmora {

/// z raised to a whole number by repeated squaring (Knuth, The Art of Computer Programming, vol. 2, 4.6.3),
/// so powers of whole parts stay exact. z^0 is 1, also for z = 0; a negative power of 0 is NaN.
ComplexValue integerPower(ComplexValue z, std::int32_t n);

} // namespace velmora
