#pragma once

namespace velmora {

/// The remainder of a / b with the sign of a; NaN for b = 0. Exact.
double modulo(double a, double b);
/// The remainder brought to 0 or above, whatever the sign of b.
double positiveModulo(double a, double b);

} // namespace velmora
