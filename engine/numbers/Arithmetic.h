#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// Addition, subtraction and multiplication; division is in Quotient.h. Complex results whose imaginary parts
// cancel have the imaginary part 0, never minus zero.

double sum(double a, double b);
double difference(double a, double b);
double product(double a, double b);

ComplexValue complexSum(ComplexValue a, ComplexValue b);
ComplexValue complexDifference(ComplexValue a, ComplexValue b);
ComplexValue complexProduct(ComplexValue a, ComplexValue b);

} // namespace velmora
