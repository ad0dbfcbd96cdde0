#include "engine/numbers/Quotient.h"

#include "engine/numbers/DoubleDouble.h"
#include "engine/numbers/PrincipalValue.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

double largerPart(ComplexValue z) { return std::max(std::fabs(z.real()), std::fabs(z.imag())); }

ComplexValue scaledPart(ComplexValue z, int exponent) {
    return {std::ldexp(z.real(), exponent), std::ldexp(z.imag(), exponent)};
}

/// The textbook quotient of finite numbers, scaled so that nothing overflows, and rounded at its end alone:
/// the parts of a real quotient cancel to the last bit.
ComplexValue textbookQuotient(ComplexValue a, ComplexValue b) {
    const int exponentOfA = std::ilogb(largerPart(a));
    const int exponentOfB = std::ilogb(largerPart(b));
    const ComplexValue p = scaledPart(a, -exponentOfA);
    const ComplexValue q = scaledPart(b, -exponentOfB);
    const DoubleDouble norm = exactProduct(q.real(), q.real()) + exactProduct(q.imag(), q.imag());
    const DoubleDouble real = exactProduct(p.real(), q.real()) + exactProduct(p.imag(), q.imag());
    const DoubleDouble imaginary = exactProduct(p.imag(), q.real()) - exactProduct(p.real(), q.imag());
    return scaledPart({(real / norm).rounded(), (imaginary / norm).rounded()}, exponentOfA - exponentOfB);
}

} // namespace

double quotient(double a, double b) { return b == 0 ? std::numeric_limits<double>::quiet_NaN() : a / b; }

ComplexValue quotient(ComplexValue a, ComplexValue b) {
    if (isReal(b)) { // by parts, for an infinite part of a times the 0 in b would be NaN
        return b.real() == 0 ? undefinedValue()
                             : ComplexValue(a.real() / b.real(), isReal(a) ? 0.0 : a.imag() / b.real());
    }
    const bool areFinite = std::isfinite(largerPart(a)) && std::isfinite(largerPart(b));
    return principalValue(areFinite && !isNaN(a) && !isNaN(b) && a != 0.0
                              ? textbookQuotient(a, b)
                              : onPrincipalSide(a) / onPrincipalSide(b));
}

} // namespace velmora
