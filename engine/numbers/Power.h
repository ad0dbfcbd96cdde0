#pragma once

#include "engine/numbers/ComplexValue.h"
#include "engine/numbers/DoubleDouble.h"

namespace velmora {

/// Whether a^b of two real numbers is real: unless a finite negative number meets an exponent that is not
/// whole. Of minus infinity every power is taken as real, for an infinite value has no direction to show.
bool realPowerApplies(double a, double b);

/// The C library's power where the above holds, except that NaN passes through: 1^NaN and NaN^0 are NaN.
/// 0^0 is 1 and 0^−1 is infinite.
double realPower(double a, double b);

/// The principal power. Whole exponents of 32 bits go by repeated squaring, so they stay exact for whole
/// parts; a half power of a negative number is purely imaginary to the last bit. 0 to a complex exponent is 0
/// when its real part is positive, undefined otherwise. NaN passes through.
ComplexValue complexPower(ComplexValue z, ComplexValue w);

/// e^(exponent · ln base), with the principal logarithm, for any base but 0. Rounded only at the end, because
/// the exponential magnifies what is lost before it.
ComplexValue principalPower(ComplexValue base, ComplexValue exponent);
ComplexValue principalPower(ComplexValue base, DoubleDouble exponent);

} // namespace velmora
