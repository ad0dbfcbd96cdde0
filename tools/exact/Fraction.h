#pragma once

#include "tools/exact/BigInteger.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velmora {

/// An exact quotient. The denominator is above 0; it need not be in lowest terms.
struct Fraction {
    Fraction() : denominator(1) {}
    Fraction(BigInteger value) : numerator(std::move(value)), denominator(1) {}
    Fraction(BigInteger above, BigInteger below)
        : numerator(std::move(above)), denominator(std::move(below)) {}

    BigInteger numerator;
    BigInteger denominator;

    int sign() const { return numerator.sign(); }
    Fraction magnitude() const { return {numerator.magnitude(), denominator}; }
};

/// Numerator over denominator, of any signs. The denominator is not 0.
Fraction quotientOf(BigInteger numerator, BigInteger denominator);
/// Compares the values.
std::strong_ordering compare(const Fraction& a, const Fraction& b);
Fraction sum(const Fraction& a, const Fraction& b);
Fraction difference(const Fraction& a, const Fraction& b);

/// Exactly the value of a finite double.
Fraction fractionOfDouble(double value);

/// Exactly what a text says that numberWithText reads; nothing for a text that it refuses. So 0.1 is a
/// tenth here and not the double nearest to it.
std::optional<Fraction> fractionOfText(std::string_view text);

/// A decimal number as written: a sign, whole digits without trailing zeroes (empty for 0), and the power of
/// ten of the first digit.
struct Decimal {
    bool isNegative = false;
    std::string digits;
    long exponent = 0;

    bool operator==(const Decimal&) const = default;
};

/// What becomes of the value half-way between two decimals, and of others.
enum class Rounding { HalfUp, HalfDown, Up };

/// The value rounded, by its magnitude, to that many significant digits.
Decimal rounded(const Fraction& value, std::size_t significantDigits, Rounding rounding = Rounding::HalfUp);

/// What a plain decimal text such as "-1.5e-09" says, digit by digit; its form is that of shortNumber. A text
/// of no number ("nan") says nothing.
std::optional<Decimal> decimalOfText(std::string_view text);

/// The text of a decimal in the form of shortNumber: with an exponent below 0.0001 and from that many whole
/// digits on.
std::string textOfDecimal(const Decimal& decimal, long digitsWithoutExponent);

/// The double nearest to the value; infinite beyond their range.
double nearestDouble(const Fraction& value);

} // namespace velmora
