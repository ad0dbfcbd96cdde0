#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// Logarithms: principal values, so ln(−1) is πi. The logarithm of 0 is minus infinity.

bool areInLogarithmDomain(double a, double b);

double naturalLogarithm(double a);
double commonLogarithm(double a);
ComplexValue complexNaturalLogarithm(ComplexValue z);
ComplexValue complexCommonLogarithm(ComplexValue z);

/// The logarithm of a number to any base; exact where the result is a whole number. Undefined (NaN) for base
/// 1, whose logarithm is 0.
double logarithmToBase(double base, double number);
ComplexValue complexLogarithmToBase(ComplexValue base, ComplexValue number);

} // namespace velmora
