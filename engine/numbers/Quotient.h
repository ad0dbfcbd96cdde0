#pragma once

#include "engine/numbers/ExtendedPrecision.h"

namespace velmora {

/// a / b, undefined (NaN) where b is exactly 0: a quotient by 0 is no number here, not even an infinite one.
double quotient(double a, double b);
ComplexValue quotient(ComplexValue a, ComplexValue b);
ExtendedComplex quotient(ExtendedComplex a, ExtendedComplex b);

/// 1 / a, undefined where a is exactly 0.
inline double reciprocal(double a) { return quotient(1.0, a); }
inline ExtendedComplex reciprocal(ExtendedComplex z) { return quotient(ExtendedComplex(1), z); }

} // namespace velmora
