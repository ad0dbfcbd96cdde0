#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// The parts of a number, its modulus, argument, conjugate and negative.

double absoluteValue(double a);
ComplexValue modulus(ComplexValue z);

double negative(double a);
ComplexValue complexNegative(ComplexValue z);

double realPartOfReal(double a);
ComplexValue realPart(ComplexValue z);

double imaginaryPartOfReal(double a);
ComplexValue imaginaryPart(ComplexValue z);

double conjugateOfReal(double a);
ComplexValue conjugate(ComplexValue z);

/// 0, or π for a negative number; a minus zero is 0 here.
double argumentOfReal(double a);
/// In radians, within (−π, π].
ComplexValue argument(ComplexValue z);

} // namespace velmora
