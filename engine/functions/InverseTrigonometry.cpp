#include "engine/functions/InverseTrigonometry.h"

#include "engine/numbers/ExtendedPrecision.h"

#include <cmath>

namespace velmora {

namespace {

/// Converted before it is rounded to double, so that asin(0.5) is 30 and not the double next to it.
double inDegrees(Extended radians) { return static_cast<double>(radians * (180 / kExtendedPi)); }

} // namespace

double arcSine(double a) { return std::asin(a); }
double arcCosine(double a) { return std::acos(a); }
double arcTangent(double a) { return std::atan(a); }

double arcSineInDegrees(double a) { return inDegrees(std::asin(Extended{a})); }
double arcCosineInDegrees(double a) { return inDegrees(std::acos(Extended{a})); }
double arcTangentInDegrees(double a) { return inDegrees(std::atan(Extended{a})); }

ComplexValue complexArcSine(ComplexValue z) { return rounded(std::asin(extended(z))); }
ComplexValue complexArcCosine(ComplexValue z) { return rounded(std::acos(extended(z))); }
ComplexValue complexArcTangent(ComplexValue z) { return rounded(std::atan(extended(z))); }

} // namespace velmora
