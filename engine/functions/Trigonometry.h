#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// The circular functions. Real and complex angles are in radians. A real angle that is a multiple of π/2 to
// within its own rounding counts as that multiple (up to a million of them), so sin(π) is 0 and tan(π/2) is
// undefined. The forms in degrees reduce the angle exactly, and their rational values, at multiples of 30°
// and 45°, are exact. The reciprocal functions are undefined (NaN) where they would divide by exactly 0.

double sine(double a);
double cosine(double a);
double tangent(double a);
double cosecant(double a);
double secant(double a);
double cotangent(double a);

double sineOfDegrees(double degrees);
double cosineOfDegrees(double degrees);
double tangentOfDegrees(double degrees);
double cosecantOfDegrees(double degrees);
double secantOfDegrees(double degrees);
double cotangentOfDegrees(double degrees);

ComplexValue complexSine(ComplexValue z);
ComplexValue complexCosine(ComplexValue z);
ComplexValue complexTangent(ComplexValue z);
ComplexValue complexCosecant(ComplexValue z);
ComplexValue complexSecant(ComplexValue z);
ComplexValue complexCotangent(ComplexValue z);

} // namespace velmora
