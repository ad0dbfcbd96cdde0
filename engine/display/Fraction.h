#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmora {

/// A fraction in lowest terms; the sign stands on the numerator, the denominator is 1 to 10000.
struct Fraction {
    std::int64_t numerator;
    std::int64_t denominator;

    double value() const { return static_cast<double>(numerator) / static_cast<double>(denominator); }
};

/// The fraction that x was meant as: the first convergent of its continued fraction (Hardy and Wright, An
/// Introduction to the Theory of Numbers, ch. X) that lies within a distance which shrinks with the size of
/// the denominator. So 0.333333 is a third, while a decimal without a small denominator has none. Nothing for
/// NaN and for magnitudes whose whole part exceeds 100,000,000. A number other than 0 never becomes 0.
std::optional<Fraction> fractionDictionary(double x);

/// The quotient of that fraction, or x itself when there is none.
double fractionValue(double x);

/// That fraction as text: "(-3/4)", or as a mixed number above 1 and below −1 "1+3/4" and "-(1+3/4)". Whole
/// values and those without a fraction are shown as every other number is.
std::string fractionText(double x, bool mixed);

} // namespace velmora
