#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// The hyperbolic functions (Abramowitz and Stegun, Handbook of Mathematical Functions, 4.5). They keep their
// digits near 0 and where an exponential would overflow: tanh(1000) is 1. coth and csch are undefined (NaN)
// at 0.

double hyperbolicSine(double a);
double hyperbolicCosine(double a);
double hyperbolicTangent(double a);
double hyperbolicCosecant(double a);
double hyperbolicSecant(double a);
double hyperbolicCotangent(double a);

ComplexValue complexHyperbolicSine(ComplexValue z);
ComplexValue complexHyperbolicCosine(ComplexValue z);
ComplexValue complexHyperbolicTangent(ComplexValue z);
ComplexValue complexHyperbolicCosecant(ComplexValue z);
ComplexValue complexHyperbolicSecant(ComplexValue z);
ComplexValue complexHyperbolicCotangent(ComplexValue z);

} // namespace velmora
