#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// The inverse circular functions: principal values (Abramowitz and Stegun, Handbook of Mathematical
// Functions, 4.4). The complex forms give radians and have their cuts on the real axis beyond ±1 (arctangent:
// on the imaginary axis beyond ±i); a real number on a cut stands on its upper side, so asin(2) is π/2
// + 1.317i.

double arcSine(double a);
double arcCosine(double a);
double arcTangent(double a);

double arcSineInDegrees(double a);
double arcCosineInDegrees(double a);
double arcTangentInDegrees(double a);

ComplexValue complexArcSine(ComplexValue z);
ComplexValue complexArcCosine(ComplexValue z);
ComplexValue complexArcTangent(ComplexValue z);

} // namespace velmora
