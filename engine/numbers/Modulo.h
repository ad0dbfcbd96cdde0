#pragma once

#include <cstdint>

namespace velmora {

/// The remainder of a / b with the sign of a; NaN for b = 0. Exact.
double modulo(double a, double b);
/// The remainder brought to 0 or above, whatever the sign of b.
double positiveModulo(double a, double b);

/// How many steps of arithmetic a remainder takes, roughly: one for each binary digit of the quotient, for it
/// is found as by hand.
std::int64_t moduloSteps(double a, double b);

} // namespace velmora
