#include "tools/units/OffsetLinearUnitConverter.h"

#include <cmath>
#include <limits>

namespace velmora {

namespace {

constexpr std::size_t kFirstUnit = 2;
constexpr double kFreezingFahrenheit = 32;
constexpr float kRoundingError = 1e-12F;

/// Cuts the text before its mark and returns the number behind it; 0 without one.
double cutOffset(std::string& text) {
    const std::size_t at = text.find(kOffsetMark);
    if (at == std::string::npos) {
        return 0;
    }
    const double offset = leadingNumber(std::string_view(text).substr(at + kOffsetMark.size()));
    text.erase(at);
    return offset;
}

} // namespace

std::unique_ptr<UnitConverter>
OffsetLinearUnitConverter::newConverterWithArray(const std::vector<std::string>& array) {
    if (array.size() <= kFirstUnit) {
        return nullptr;
    }
    std::vector<std::string> plain = array;
    cutOffset(plain.front());
    std::vector<double> offsets;
    for (std::size_t i = kFirstUnit; i < plain.size(); ++i) {
        offsets.push_back(cutOffset(plain[i]));
    }
    return std::unique_ptr<UnitConverter>(new OffsetLinearUnitConverter(plain, std::move(offsets)));
}

OffsetLinearUnitConverter::OffsetLinearUnitConverter(const std::vector<std::string>& array,
                                                     std::vector<double> zeroOffsets)
    : UnitConverter(array), m_zeroOffsets(std::move(zeroOffsets)) {}

double OffsetLinearUnitConverter::quantityByFormula(double q, int fromUnit, int toUnit) const {
    if (!isUnit(fromUnit) || !isUnit(toUnit)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    const auto source = static_cast<std::size_t>(fromUnit);
    const auto target = static_cast<std::size_t>(toUnit);
    const double result =
        (q - m_zeroOffsets[source]) * unitConversions()[source] / unitConversions()[target] +
        m_zeroOffsets[target];
    const bool vanishes = q == kFreezingFahrenheit && std::abs(static_cast<float>(result)) < kRoundingError;
    return vanishes ? 0 : result;
}

double OffsetLinearUnitConverter::roundingError(double q, int fromUnit, int toUnit) const {
    const double error = UnitConverter::roundingError(q, fromUnit, toUnit);
    if (!isUnit(fromUnit) || !isUnit(toUnit)) {
        return error;
    }
    const double zeroOfSource = m_zeroOffsets[static_cast<std::size_t>(fromUnit)];
    const double zeroOfTarget = m_zeroOffsets[static_cast<std::size_t>(toUnit)];
    const double subtracted = (std::abs(q) + std::abs(zeroOfSource)) * oneOfUnitAtIndex(fromUnit, toUnit);
    constexpr double roundingSteps = 2;
    return error +
           roundingSteps * std::numeric_limits<double>::epsilon() * (subtracted + std::abs(zeroOfTarget));
}

} // namespace velmora
