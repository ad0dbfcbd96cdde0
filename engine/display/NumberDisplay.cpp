#include "engine/display/NumberDisplay.h"

#include "engine/environment/Environment.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

/// The double nearest to 10^exponent, which is what the user's own "1E23" is read as.
double powerOfTen(int exponent) {
    if (exponent > std::numeric_limits<double>::max_exponent10) {
        return std::numeric_limits<double>::infinity();
    }
    const std::string text = "1e" + std::to_string(exponent);
    double power = 0; // kept when the power is too small for a double
    std::from_chars(text.data(), text.data() + text.size(), power);
    return power;
}

/// As "%.*f" and "%.*E" of the C library write it in the plain locale.
std::string numberText(double x, int digits, bool withExponent) {
    // Sign, the digits of the largest double, point; or sign, digit, point, exponent.
    constexpr std::size_t kLongestWithoutFraction = std::numeric_limits<double>::max_exponent10 + 8;
    std::string text(kLongestWithoutFraction + static_cast<std::size_t>(digits), '\0');
    const auto format = withExponent ? std::chars_format::scientific : std::chars_format::fixed;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), x, format, digits);
    text.resize(static_cast<std::size_t>(end.ptr - text.data()));
    std::ranges::replace(text, 'e', 'E');
    return text;
}

void removeTrailingZeroes(std::string& text) {
    if (text.find('.') == std::string::npos) {
        return;
    }
    const std::size_t end = std::min(text.find('E'), text.size());
    std::size_t kept = end;
    while (kept > 1 && text[kept - 1] == '0') {
        --kept;
    }
    if (kept > 1 && text[kept - 1] == '.') {
        --kept;
    }
    text.erase(kept, end - kept);
}

void insertCommas(std::string& text) {
    constexpr std::size_t kGroup = 3;
    std::size_t position = text.find('.');
    if (position == std::string::npos) {
        if (!isAllDigits(text)) {
            return; // intended behaviour: a negative whole number has no separators, as users' tables show it
        }
        position = text.size();
    }
    if (position <= kGroup + 1) { // four digits stay together
        return;
    }
    // Intended behaviour: the minus sign counts as a digit, so −123456.7 is "-,123,456.7".
    while (position > kGroup) {
        position -= kGroup;
        text.insert(position, ",");
    }
}

} // namespace

std::string displayStringWithDouble(double x, const NumberStyle& style) {
    if (std::isnan(x)) {
        return "undefined";
    }
    if (x == 0) {
        return "0";
    }
    if (std::isinf(x)) {
        return x > 0 ? "Very large or infinite" : "Very negative or negative infinity";
    }
    constexpr double kSmallestPlain = 0.001;
    const double magnitude = std::fabs(x);
    const bool withExponent =
        magnitude < kSmallestPlain || magnitude >= powerOfTen(style.maxDigitsForDecimal);
    std::string text = numberText(x, std::max(style.displayDigits, 0), withExponent);
    if (!style.trailingZeroes) {
        removeTrailingZeroes(text);
    }
    if (style.commas) {
        insertCommas(text);
    }
    return text;
}

std::string displayStringWithDouble(double x, int displayDigits, bool trailingZeroes, int maxDigitsForDecimal,
                                    bool commas) {
    return displayStringWithDouble(x, NumberStyle{.displayDigits = displayDigits,
                                                  .trailingZeroes = trailingZeroes,
                                                  .maxDigitsForDecimal = maxDigitsForDecimal,
                                                  .commas = commas});
}

std::string displayStringWithDouble(double x) {
    return displayStringWithDouble(x, Environment::current().numberStyle());
}

std::string displayStringWithComplex(ComplexValue z) {
    const double threshold = Environment::current().complexRoundingThreshold();
    if (std::fabs(z.imag()) >= threshold && z.imag() != 0) {
        return "complex";
    }
    return displayStringWithDouble(std::fabs(z.real()) < threshold ? 0 : z.real());
}

bool isAllDigits(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace velmora
