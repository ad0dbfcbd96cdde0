#include "engine/numbers/ComplexParts.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace velmora {

namespace {

/// A part of an undefined number is undefined, even if that part itself is not NaN.
ComplexValue unlessNaN(ComplexValue z, double part) {
    return isNaN(z) ? undefinedValue() : ComplexValue(part);
}

} // namespace

double absoluteValue(double a) { return std::fabs(a); }
ComplexValue modulus(ComplexValue z) { return unlessNaN(z, std::abs(z)); }

double negative(double a) { return -a; }
ComplexValue complexNegative(ComplexValue z) { return {-z.real(), isReal(z) ? 0.0 : -z.imag()}; }

double realPartOfReal(double a) { return a; }
ComplexValue realPart(ComplexValue z) { return unlessNaN(z, z.real()); }

double imaginaryPartOfReal(double a) { return std::isnan(a) ? a : 0; }
ComplexValue imaginaryPart(ComplexValue z) { return unlessNaN(z, z.imag()); }

double conjugateOfReal(double a) { return a; }
ComplexValue conjugate(ComplexValue z) { return {z.real(), isReal(z) ? 0.0 : -z.imag()}; }

double argumentOfReal(double a) {
    if (std::isnan(a)) {
        return a;
    }
    return a < 0 ? std::numbers::pi : 0;
}

ComplexValue argument(ComplexValue z) { return isReal(z) ? argumentOfReal(z.real()) : std::arg(z); }

} // namespace velmora
