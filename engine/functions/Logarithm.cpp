#include "engine/functions/Logarithm.h"

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
    return rounded(std::log(extended(z)));
}

ComplexValue complexCommonLogarithm(ComplexValue z) {
    const ExtendedComplex logarithm = std::log(extended(z));
    return rounded({logarithm.real() / kExtendedLn10, logarithm.imag() / kExtendedLn10});
}

double logarithmToBase(double base, double number) {
    // In extended precision the quotient rounds to the whole number where it is one: logbase(10, 1000) is 3.
    const Extended divisor = std::log(Extended{base});
    return divisor == 0 ? undefinedValue().real() : static_cast<double>(std::log(Extended{number}) / divisor);
}

ComplexValue complexLogarithmToBase(ComplexValue base, ComplexValue number) {
    return rounded(quotient(std::log(extended(number)), std::log(extended(base))));
}

} // namespace velmora
