#include "tools/units/UnitConverter.h"

#include "calculator/model/Assertion.h"
#include "engine/environment/Environment.h"
#include "engine/tree/Number.h"
#include "platform/text/Log.h"
#include "tools/units/OffsetLinearUnitConverter.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t kFirstUnit = 2; // behind the quantity and its main unit
constexpr int kTypedDigits = 14;      // of the longest number that people are expected to type
constexpr double kRoundingSteps = 4;  // more than a quotient, a product and their factors lose

/// The number with the fewest significant decimal digits, at most kTypedDigits, that lies so near to the
/// value; the value itself where there is none.
double shortestWithin(double value, double error) {
    if (!std::isfinite(value)) {
        return value;
    }
    for (int decimals = 0; decimals < kTypedDigits; ++decimals) { // behind the first digit
        std::array<char, 32> text{};
        char* const end = text.data() + text.size();
        const auto written = std::to_chars(text.data(), end, value, std::chars_format::scientific, decimals);
        double candidate = value;
        std::from_chars(text.data(), written.ptr, candidate);
        if (std::abs(candidate - value) <= error) {
            return candidate;
        }
    }
    return value;
}

/// What stands before and behind the first mark; all of it and nothing where there is no mark.
std::pair<std::string_view, std::optional<std::string_view>> splitAt(std::string_view text, char mark) {
    const std::size_t at = text.find(mark);
    if (at == std::string_view::npos) {
        return {text, std::nullopt};
    }
    return {text.substr(0, at), text.substr(at + 1)};
}

} // namespace

std::string pluralizedString(std::string_view name) {
    std::size_t end = name.find(" per");
    if (end == std::string_view::npos) {
        end = name.find(" (");
    }
    const std::string_view singular = name.substr(0, end);
    return std::string(singular) + "s" + std::string(name.substr(singular.size()));
}

double leadingNumber(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.find_first_of(".0123456789") != 0) {
        return 0; // such as "inf", which is a text here
    }
    const double magnitude = decimalPrefixValue(text);
    return isNegative ? -magnitude : magnitude;
}

std::unique_ptr<UnitConverter> UnitConverter::newConverterWithArray(const std::vector<std::string>& array) {
    if (array.size() <= kFirstUnit) {
        return nullptr;
    }
    if (array.front().find(kOffsetMark) != std::string::npos) {
        return OffsetLinearUnitConverter::newConverterWithArray(array);
    }
    return std::unique_ptr<UnitConverter>(new UnitConverter(array));
}

UnitConverter::UnitConverter(const std::vector<std::string>& array)
    : m_unitsOfWhat(array[0]), m_mainUnit(array[1]) {
    for (std::size_t i = kFirstUnit; i < array.size(); ++i) {
        addUnit(array[i]);
    }
}

void UnitConverter::addUnit(std::string_view text) {
    const auto [beforeAbbreviation, abbreviation] = splitAt(text, '#');
    if (!abbreviation) {
        const std::string fault = "Missing abbreviation in string " + std::string(text);
        log(fault);
        assertionFailure(fault);
    }
    const auto [beforePlural, plural] = splitAt(beforeAbbreviation, '|');
    const auto [name, factor] = splitAt(beforePlural, '=');
    m_unitNames.emplace_back(name);
    m_unitConversions.push_back(factor ? leadingNumber(*factor) : 1);
    m_unitAbbreviations.emplace_back(abbreviation.value_or(std::string_view()));
    m_pluralUnitNames.push_back(plural ? std::string(*plural) : pluralizedString(name));
}

std::optional<std::string> UnitConverter::abbreviationForUnitAtIndex(int index) const {
    return isUnit(index) ? std::optional(m_unitAbbreviations[static_cast<std::size_t>(index)]) : std::nullopt;
}

std::optional<std::string> UnitConverter::nameForQuantity(double quantity, int index) const {
    if (!isUnit(index)) {
        Environment::current().raiseDebugAlert("No good!");
        return std::nullopt;
    }
    const auto unit = static_cast<std::size_t>(index);
    return std::abs(quantity) == 1 ? m_unitNames[unit] : m_pluralUnitNames[unit];
}

double UnitConverter::oneOfUnitAtIndex(int from, int to) const {
    if (!isUnit(from) || !isUnit(to)) {
        return 0;
    }
    return m_unitConversions[static_cast<std::size_t>(from)] /
           m_unitConversions[static_cast<std::size_t>(to)];
}

double UnitConverter::quantityByFormula(double q, int fromUnit, int toUnit) const {
    return q * oneOfUnitAtIndex(fromUnit, toUnit);
}

double UnitConverter::roundingError(double q, int fromUnit, int toUnit) const {
    return kRoundingSteps * std::numeric_limits<double>::epsilon() *
           std::abs(quantityByFormula(q, fromUnit, toUnit));
}

double UnitConverter::quantity(double q, int fromUnit, int toUnit) const {
    const double result = quantityByFormula(q, fromUnit, toUnit);
    const double candidate = shortestWithin(result, roundingError(q, fromUnit, toUnit));
    // The way back has to agree, or a result that only happens to lie near a short number would lead astray.
    const double back = quantityByFormula(candidate, toUnit, fromUnit);
    const bool isMeant = std::abs(back - q) <= roundingError(candidate, toUnit, fromUnit);
    return isMeant ? candidate : result;
}

} // namespace velmora
