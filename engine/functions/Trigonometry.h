#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

// The circular functions. Real and complex angles are in radians; the forms in degrees are exact
// at every real multiple of 90°, where π/180 would leave rounding behind: sin(180) is 0 and tan(90) is
// undefined. The reciprocal functions are undefined (NaN) where they would divide by exactly 0.

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
