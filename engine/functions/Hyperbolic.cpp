#include "engine/functions/Hyperbolic.h"

#include "engine/numbers/PrincipalValue.h"
#include "engine/numbers/Quotient.h"

#include <cmath>

namespace velmora {

namespace {

/// Beyond this both cosh(a) and |sinh(a)| are e^|a| / 2 to the last bit; further out they overflow, while
/// their reciprocals are still numbers.
constexpr double kExponentialFrom = 50;

/// 2·e^−|a|, as a product of two factors that are both far from underflow.
double reciprocalOfHalfExponential(double a) {
    const double half = std::exp(-std::fabs(a) / 2);
    return 2 * half * half;
}

} // namespace

double hyperbolicSine(double a) { return std::sinh(a); }
double hyperbolicCosine(double a) { return std::cosh(a); }
double hyperbolicTangent(double a) { return std::tanh(a); }

double hyperbolicCosecant(double a) {
    if (std::fabs(a) > kExponentialFrom) {
        return std::copysign(reciprocalOfHalfExponential(a), a);
    }
    return reciprocal(std::sinh(a));
}

double hyperbolicSecant(double a) {
    if (std::fabs(a) > kExponentialFrom) {
        return reciprocalOfHalfExponential(a);
    }
    return reciprocal(std::cosh(a));
}

double hyperbolicCotangent(double a) { return reciprocal(std::tanh(a)); }

ComplexValue complexHyperbolicSine(ComplexValue z) { return principalValue(std::sinh(onPrincipalSide(z))); }
ComplexValue complexHyperbolicCosine(ComplexValue z) { return principalValue(std::cosh(onPrincipalSide(z))); }
ComplexValue complexHyperbolicTangent(ComplexValue z) {
    return principalValue(std::tanh(onPrincipalSide(z)));
}
ComplexValue complexHyperbolicCosecant(ComplexValue z) {
    return principalValue(reciprocal(std::sinh(onPrincipalSide(z))));
}
ComplexValue complexHyperbolicSecant(ComplexValue z) {
    return principalValue(reciprocal(std::cosh(onPrincipalSide(z))));
}
ComplexValue complexHyperbolicCotangent(ComplexValue z) {
    return principalValue(reciprocal(std::tanh(onPrincipalSide(z))));
}

} // namespace velmora
