#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

/// a / b, undefined (NaN) where b is exactly 0: a quotient by 0 is no number here, not even an infinite one.
double quotient(double a, double b);
/// Of complex numbers each part is correct to about a unit of the last place of the larger one, and a
/// quotient that is real has the imaginary part 0: z / z is 1.
ComplexValue quotient(ComplexValue a, ComplexValue b);

/// 1 / a, undefined where a is exactly 0.
inline double reciprocal(double a) { return quotient(1.0, a); }
inline ComplexValue reciprocal(ComplexValue z) { return quotient(ComplexValue(1), z); }

} // namespace velmora
