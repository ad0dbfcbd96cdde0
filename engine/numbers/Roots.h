#pragma once

#include "engine/numbers/ComplexValue.h"

namespace velmora {

double squareRoot(double a);
ComplexValue complexSquareRoot(ComplexValue z);

/// The real cube root, of negative numbers too.
double cubeRoot(double a);
/// The principal cube root, with an argument in (−π/3, π/3].
ComplexValue complexCubeRoot(ComplexValue z);

/// The real root of any real degree of a positive number. Of a negative number the degree is cut to a whole
/// number: odd degrees give the negative root, even ones NaN. NaN also for the degree 0 and for the radicand
/// 0.
double nthRoot(double degree, double radicand);
/// The principal root; for two real inputs the real one. NaN for the degree 0 and the radicand 0.
ComplexValue complexNthRoot(ComplexValue degree, ComplexValue radicand);

} // namespace velmora
