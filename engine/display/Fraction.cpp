#include "engine/display/Fraction.h"

#include "engine/display/NumberDisplay.h"

#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr double kLargestWholePart = 100000000;
constexpr double kLargestDenominator = 10000;
constexpr double kSmallestRemainder = 1e-11; ///< what is left after so many digits is rounding

/// How close a convergent must come to count as what the user meant.
double allowedDistance(double denominator) {
    if (denominator <= 9) {
        return 1e-5;
    }
    return denominator <= 99 ? 1e-8 : 1e-12;
}

} // namespace

std::optional<Fraction> fractionDictionary(double x) {
    const double magnitude = std::fabs(x);
    if (!(std::trunc(magnitude) <= kLargestWholePart)) { // NaN too
        return std::nullopt;
    }
    double rest = magnitude;
    double wholePart = std::floor(rest);
    double formerNumerator = 1;
    double formerDenominator = 0;
    double numerator = wholePart;
    double denominator = 1;
    while (denominator <= kLargestDenominator) {
        const double distance = std::fabs(magnitude - numerator / denominator);
        if (distance < allowedDistance(denominator) && (numerator != 0 || x == 0)) {
            return Fraction{static_cast<std::int64_t>(std::copysign(numerator, x)),
                            static_cast<std::int64_t>(denominator)};
        }
        const double remainder = rest - wholePart;
        if (remainder <= kSmallestRemainder) {
            return std::nullopt;
        }
        rest = 1 / remainder;
        wholePart = std::floor(rest);
        formerNumerator = std::exchange(numerator, wholePart * numerator + formerNumerator);
        formerDenominator = std::exchange(denominator, wholePart * denominator + formerDenominator);
    }
    return std::nullopt;
}

double fractionValue(double x) {
    const auto fraction = fractionDictionary(x);
    return fraction ? fraction->value() : x;
}

std::string fractionText(double x, bool mixed) {
    const auto fraction = fractionDictionary(x);
    if (!fraction) {
        return displayStringWithDouble(x);
    }
    const std::int64_t numerator = fraction->numerator;
    const std::int64_t denominator = fraction->denominator;
    if (denominator == 1) {
        return displayStringWithDouble(fraction->value());
    }
    const auto quotientText = [denominator](std::int64_t above) {
        return std::to_string(above) + "/" + std::to_string(denominator);
    };
    const std::int64_t magnitude = numerator < 0 ? -numerator : numerator;
    if (!mixed || magnitude < denominator) {
        return "(" + quotientText(numerator) + ")";
    }
    const std::string text =
        std::to_string(magnitude / denominator) + "+" + quotientText(magnitude % denominator);
    return numerator < 0 ? "-(" + text + ")" : text;
}

} // namespace velmora
