#include "tools/units/TypedQuantity.h"

#include "tools/units/UnitConverter.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t digitsAt(std::string_view text, std::size_t at) {
    std::size_t count = 0;
    while (at + count < text.size() && isDigit(text[at + count])) {
        ++count;
    }
    return count;
}

/// How much of the text is one number, from its start; 0 when it begins with none.
std::size_t lengthOfNumber(std::string_view text) {
    std::size_t at = text.starts_with('-') ? 1 : 0;
    const std::size_t whole = digitsAt(text, at);
    at += whole;
    std::size_t decimals = 0;
    if (at < text.size() && text[at] == '.') {
        decimals = digitsAt(text, at + 1);
        at += 1 + decimals;
    }
    if (whole + decimals == 0) {
        return 0;
    }
    if (at < text.size() && text[at] == 'E') {
        const std::size_t digits = at + 1 + (text.substr(at + 1).starts_with('-') ? 1 : 0);
        if (const std::size_t count = digitsAt(text, digits); count > 0) {
            at = digits + count;
        }
    }
    return at;
}

} // namespace

std::string faultOfTypedQuantity(std::string_view entry) {
    if (entry.empty() || entry == "-") {
        return {};
    }
    const std::size_t length = lengthOfNumber(entry);
    if (length == 0) {
        return std::string(entry) + " is not a number.";
    }
    if (length < entry.size()) {
        return "Only " + std::string(entry.substr(0, length)) + " of it is a number.";
    }
    const double value = leadingNumber(entry);
    if (std::isinf(value)) {
        return "The number is too large.";
    }
    const std::string_view mantissa = entry.substr(0, entry.find('E'));
    const bool isZero = std::ranges::none_of(mantissa, [](char c) { return c >= '1' && c <= '9'; });
    return value == 0 && !isZero ? "The number is too small." : "";
}

} // namespace velmora
