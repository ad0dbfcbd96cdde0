#include "engine/numbers/Arithmetic.h"

namespace velmora {

namespace {

ComplexValue withoutMinusZero(ComplexValue z) { return {z.real(), z.imag() + 0.0}; }

} // namespace

double sum(double a, double b) { return a + b; }
double difference(double a, double b) { return a - b; }
double product(double a, double b) { return a * b; }

ComplexValue complexSum(ComplexValue a, ComplexValue b) { return withoutMinusZero(a + b); }
ComplexValue complexDifference(ComplexValue a, ComplexValue b) { return withoutMinusZero(a - b); }
ComplexValue complexProduct(ComplexValue a, ComplexValue b) { return withoutMinusZero(a * b); }

} // namespace velmora
