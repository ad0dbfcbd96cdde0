#include "engine/tree/Number.h"

#include "engine/display/NumberDisplay.h"
#include "engine/numbers/ShortNumber.h"
#include "engine/tree/DescriptionWriter.h"
#include "platform/files/KeyedArchive.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <numbers>

namespace velmora {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether a decimal text that no double holds is too large rather than too small: the power of ten of
/// its first digit that is not 0.
bool isTooLarge(std::string_view text) {
    const std::size_t exponentMark = std::min(text.find_first_of("eE"), text.size());
    const std::string_view digits = text.substr(0, exponentMark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t firstDigit = digits.find_first_not_of("0.");
    if (firstDigit == std::string_view::npos) {
        return false;
    }
    const auto place = static_cast<long long>(point) - static_cast<long long>(firstDigit);
    long long exponent = 0;
    if (exponentMark < text.size()) {
        std::string_view written = text.substr(exponentMark + 1);
        const bool isNegative = !written.empty() && written.front() == '-';
        if (!written.empty() && (written.front() == '-' || written.front() == '+')) {
            written.remove_prefix(1);
        }
        for (const char c : written) {
            if (!isDigit(c)) {
                break;
            }
            exponent = std::min(exponent * 10 + (c - '0'), 1'000'000'000'000LL);
        }
        exponent = isNegative ? -exponent : exponent;
    }
    return place + exponent > 0;
}

} // namespace

double decimalPrefixValue(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        return isTooLarge(text) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return error == std::errc() ? value : 0.0;
}

std::unique_ptr<Number> Number::newNumberWithText(std::string_view text) {
    if (text.empty()) {
        return nullptr;
    }
    if (text == "i") {
        return std::make_unique<Number>(ComplexValue(0, 1));
    }
    if (isConstantWithUncertainFinalDigit(text)) {
        const std::string_view opened = dropLast(text);
        const std::string_view digit = lastCodePoint(opened);
        return newNumberWithText(std::string(dropLast(opened, 2)).append(digit));
    }
    if (isDigit(text.front()) || text.front() == '.' || text.front() == 'E') {
        return std::make_unique<Number>(decimalPrefixValue(text));
    }
    if (text == "e") {
        return std::make_unique<Number>(std::numbers::e);
    }
    if (text == "π") {
        return std::make_unique<Number>(std::numbers::pi);
    }
    // The value of a named constant. An "=" at the very end would leave no value behind it.
    const std::size_t equals = text.size() < 2 ? std::string_view::npos : text.rfind('=', text.size() - 2);
    return equals == std::string_view::npos ? nullptr : newNumberWithText(text.substr(equals + 1));
}

std::string Number::toDisplayString() const {
    std::string text = displayStringWithComplex(number());
    if (std::any_of(text.begin(), text.end(), isDigit)) {
        std::replace(text.begin(), text.end(), 'e', 'E');
    }
    return "(" + text + ")";
}

void Number::describe(DescriptionWriter& writer) const { writer << shortNumber(number().real()); }

void Number::encodeWithCoder(KeyedArchiver& coder) const {
    coder.encode("NumberDouble", number().real());
    if (number().imag() != 0) {
        coder.encode("NumberImaginary", number().imag());
    }
}

std::unique_ptr<Number> Number::decode(const KeyedUnarchiver& coder) {
    return std::make_unique<Number>(
        ComplexValue(coder.number("NumberDouble").value_or(0), coder.number("NumberImaginary").value_or(0)));
}

} // namespace velmora
