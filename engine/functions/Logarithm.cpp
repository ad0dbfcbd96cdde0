#include "engine/functions/Logarithm.h"

#include "engine/numbers/DoubleDouble.h"
#include "engine/numbers/PrincipalValue.h"
#include "engine/numbers/Quotient.h"

#include <cmath>
#include <numbers>

namespace velmora {

bool areInLogarithmDomain(double a, double b) { return !(a <= 0) && !(b <= 0); }

double naturalLogarithm(double a) { return std::log(a); }
double commonLogarithm(double a) { return std::log10(a); }

ComplexValue complexNaturalLogarithm(ComplexValue z) {
    if (isReal(z) && z.real() < 0) { // curves reach this at every sample left of their pole
        return {std::log(-z.real()), std::numbers::pi};
    }
    return principalValue(std::log(onPrincipalSide(z)));
}

ComplexValue complexCommonLogarithm(ComplexValue z) {
    const ComplexValue logarithm = std::log(onPrincipalSide(z));
    return principalValue({logarithm.real() / std::numbers::ln10, logarithm.imag() / std::numbers::ln10});
}

double logarithmToBase(double base, double number) {
    const bool areFinite = std::isfinite(base) && std::isfinite(number);
    if (base == 1 || !areFinite || base <= 0 || number <= 0) {
        return quotient(std::log(number), std::log(base));
    }
    // With more digits than a double has the quotient rounds to the whole number where it is one:
    // logbase(10, 1000) is 3.
    return (naturalLogarithm(DoubleDouble(number)) / naturalLogarithm(DoubleDouble(base))).rounded();
}

ComplexValue complexLogarithmToBase(ComplexValue base, ComplexValue number) {
    return principalValue(quotient(std::log(onPrincipalSide(number)), std::log(onPrincipalSide(base))));
}

} // namespace velmora
