#include "tools/exact/Fraction.h"

#include "toolkit/OrvNumberSettingsCell.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Digits, the power of ten of the digit before the point, and the sign, as they stand in a number's text.
struct Written {
    bool isNegative = false;
    std::string digits;
    long pointAfter = 0; ///< how many of the digits stand before the point
    long exponent = 0;
};

Written readWritten(std::string_view text) {
    Written written;
    bool isAfterPoint = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (isDigit(c)) {
            written.digits += c;
            written.pointAfter += isAfterPoint ? 0 : 1;
        } else if (c == '.') {
            isAfterPoint = true;
        } else if (c == 'e' || c == 'E') {
            std::string_view rest = text.substr(i + 1);
            if (rest.starts_with('+')) {
                rest.remove_prefix(1);
            }
            std::from_chars(rest.data(), rest.data() + rest.size(), written.exponent);
            break;
        } else {
            // Blanks and the bytes of a typographic minus say nothing but the sign.
            written.isNegative = written.isNegative || c == '-' || c == '\xe2';
        }
    }
    return written;
}

} // namespace

Fraction quotientOf(BigInteger numerator, BigInteger denominator) {
    if (denominator.isNegative()) {
        return {-numerator, -denominator};
    }
    return {std::move(numerator), std::move(denominator)};
}

std::strong_ordering compare(const Fraction& a, const Fraction& b) {
    return a.numerator * b.denominator <=> b.numerator * a.denominator;
}

Fraction sum(const Fraction& a, const Fraction& b) {
    return {a.numerator * b.denominator + b.numerator * a.denominator, a.denominator * b.denominator};
}

Fraction difference(const Fraction& a, const Fraction& b) { return sum(a, {-b.numerator, b.denominator}); }

Fraction fractionOfDouble(double value) {
    constexpr int mantissaBits = std::numeric_limits<double>::digits;
    int exponent = 0;
    const auto mantissa = static_cast<std::int64_t>(std::ldexp(std::frexp(value, &exponent), mantissaBits));
    exponent -= mantissaBits;
    const auto shift = static_cast<std::size_t>(std::abs(exponent));
    if (exponent < 0) {
        return {mantissa, BigInteger(1) << shift};
    }
    return {BigInteger(mantissa) << shift};
}

std::optional<Fraction> fractionOfText(std::string_view text) {
    if (!numberWithText(text)) {
        return std::nullopt;
    }
    const Written written = readWritten(text);
    BigInteger digits = BigInteger::fromDigits(written.digits);
    if (digits.isZero()) {
        return Fraction{}; // whatever its exponent
    }
    if (written.isNegative) {
        digits = -digits;
    }
    // A number within the range of doubles has an exponent that its digits can make up for.
    const long power = written.exponent + written.pointAfter - static_cast<long>(written.digits.size());
    const BigInteger scale = BigInteger::powerOfTen(static_cast<std::size_t>(std::abs(power)));
    if (power < 0) {
        return Fraction{std::move(digits), scale};
    }
    return Fraction{digits * scale};
}

Decimal rounded(const Fraction& value, std::size_t significantDigits, Rounding rounding) {
    if (value.sign() == 0) {
        return {};
    }
    const Fraction size = value.magnitude();
    const auto wanted = static_cast<long>(significantDigits);
    // The power of ten of the first digit, guessed from below by the lengths in bits.
    constexpr double log10Of2 = 0.30102999566398120;
    const auto bits = static_cast<double>(size.numerator.bitLength()) -
                      static_cast<double>(size.denominator.bitLength()) - 1;
    auto exponent = static_cast<long>(std::floor(bits * log10Of2));
    for (;; ++exponent) {
        const long power = wanted - 1 - exponent;
        const BigInteger scale = BigInteger::powerOfTen(static_cast<std::size_t>(std::abs(power)));
        const BigInteger numerator = power >= 0 ? size.numerator * scale : size.numerator;
        const BigInteger denominator = power >= 0 ? size.denominator : size.denominator * scale;
        BigInteger::Division division = BigInteger::divide(numerator, denominator);
        if (division.quotient >= BigInteger::powerOfTen(significantDigits)) {
            continue; // the guess was too low
        }
        const auto half = (division.remainder << 1) <=> denominator;
        const bool roundsUp = rounding == Rounding::Up       ? !division.remainder.isZero()
                              : rounding == Rounding::HalfUp ? half >= 0
                                                             : half > 0;
        if (roundsUp) {
            division.quotient += 1;
        }
        Decimal decimal{value.sign() < 0, division.quotient.text(), exponent};
        if (decimal.digits.size() > significantDigits) {
            ++decimal.exponent; // 9.99 became 10.0
        }
        decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
        return decimal;
    }
}

std::optional<Decimal> decimalOfText(std::string_view text) {
    const Written written = readWritten(text);
    if (written.digits.empty()) {
        return std::nullopt;
    }
    const std::size_t first = written.digits.find_first_not_of('0');
    if (first == std::string::npos) {
        return Decimal{};
    }
    const std::size_t last = written.digits.find_last_not_of('0');
    return Decimal{written.isNegative, written.digits.substr(first, last - first + 1),
                   written.exponent + written.pointAfter - 1 - static_cast<long>(first)};
}

std::string textOfDecimal(const Decimal& decimal, long digitsWithoutExponent) {
    if (decimal.digits.empty()) {
        return "0";
    }
    constexpr long smallestPlainExponent = -4;
    const std::string sign = decimal.isNegative ? "-" : "";
    const auto count = static_cast<long>(decimal.digits.size());
    const long exponent = decimal.exponent;
    if (exponent < smallestPlainExponent || exponent >= digitsWithoutExponent) {
        const std::string power = std::to_string(std::abs(exponent));
        return sign + decimal.digits.substr(0, 1) + (count > 1 ? "." + decimal.digits.substr(1) : "") +
               (exponent < 0 ? "e-" : "e+") + (power.size() < 2 ? "0" : "") + power;
    }
    if (exponent < 0) {
        return sign + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + decimal.digits;
    }
    const auto whole = static_cast<std::size_t>(exponent + 1);
    std::string digits = decimal.digits;
    digits.resize(std::max(whole, digits.size()), '0');
    return sign + digits.substr(0, whole) + (digits.size() > whole ? "." + digits.substr(whole) : "");
}

double nearestDouble(const Fraction& value) {
    // No value half-way between two doubles has as many digits, so this rounding creates no tie of its own.
    constexpr std::size_t digits = 800;
    const Decimal decimal = rounded(value, digits);
    if (decimal.digits.empty()) {
        return 0;
    }
    const std::string text = textOfDecimal(decimal, 1);
    double nearest = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), nearest);
    if (error == std::errc::result_out_of_range) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        nearest = decimal.exponent < 0 ? 0 : decimal.isNegative ? -infinity : infinity;
    }
    return nearest;
}

} // namespace velmora
