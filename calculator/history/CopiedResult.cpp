#include "calculator/history/CopiedResult.h"

#include "engine/environment/Environment.h"
#include "engine/lines/ExpressionWithTokenArray.h"
#include "engine/tree/Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

std::string shortestText(double number) {
    constexpr std::size_t kLongest = 32;
    std::string text(kLongest, '\0');
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number);
    text.resize(static_cast<std::size_t>(end.ptr - text.data()));
    const std::size_t mark = text.find('e');
    if (mark == std::string::npos) {
        return text;
    }
    // An exponent as it is typed here: "E", no plus sign, no leading zeroes.
    const bool isNegative = text[mark + 1] == '-';
    const std::size_t digits = text.find_first_not_of("+-0", mark + 1);
    return text.substr(0, mark) + (isNegative ? "E-" : "E") + text.substr(digits);
}

} // namespace

std::string fullPrecisionText(ComplexValue value) {
    const double threshold = Environment::current().complexRoundingThreshold();
    const bool hasImaginary = value.imag() != 0 && std::fabs(value.imag()) >= threshold;
    const bool hasReal = !hasImaginary || (value.real() != 0 && std::fabs(value.real()) >= threshold);
    if (!hasImaginary) {
        return shortestText(value.real());
    }
    const std::string imaginary = shortestText(value.imag()) + "i";
    const bool needsSign = hasReal && !imaginary.starts_with('-');
    return (hasReal ? shortestText(value.real()) : "") + (needsSign ? "+" : "") + imaginary;
}

PasteboardItem copiedResult(const ExpressionWithTokenArray& row) {
    const ComplexValue value = row.resultValue();
    if (!std::isfinite(value.real()) || !std::isfinite(value.imag())) {
        return {{std::string(kPlainTextType), row.resultText()}};
    }
    const TokenArray tokens{std::shared_ptr<const Expression>(std::make_shared<Number>(value))};
    return {{std::string(kPlainTextType), fullPrecisionText(value)},
            {std::string(kTokenArrayPasteboardType), binaryPropertyList(archivedTokenArray(tokens))}};
}

} // namespace velmora
