#include "engine/numbers/Quotient.h"

#include <limits>

namespace velmora {

double quotient(double a, double b) { return b == 0 ? std::numeric_limits<double>::quiet_NaN() : a / b; }

ComplexValue quotient(ComplexValue a, ComplexValue b) {
    if (!isReal(b)) {
        return rounded(quotient(extended(a), extended(b)));
    }
    if (b.real() == 0) {
        return undefinedValue();
    }
    return {a.real() / b.real(), isReal(a) ? 0.0 : a.imag() / b.real()};
}

ExtendedComplex quotient(ExtendedComplex a, ExtendedComplex b) {
    if (b.imag() != 0) {
        return a / b;
    }
    if (b.real() == 0) {
        return {std::numeric_limits<Extended>::quiet_NaN(), 0};
    }
    // By parts, for an infinite part of a times the 0 in b would be NaN.
    return {a.real() / b.real(), a.imag() == 0 ? 0 : a.imag() / b.real()};
}

} // namespace velmora
