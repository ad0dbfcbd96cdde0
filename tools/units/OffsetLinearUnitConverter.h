#pragma once

#include "tools/units/UnitConverter.h"

namespace velmora {

inline constexpr std::string_view kOffsetMark = "++";

/// A quantity whose scales start at different zeros, such as temperature. A unit's text may end in "++" and
/// the place of its zero on the reference scale's degrees; 0 where it is left out.
class OffsetLinearUnitConverter final : public UnitConverter {
public:
    /// Nothing for fewer than three texts. The name may or may not carry its "++".
    static std::unique_ptr<UnitConverter> newConverterWithArray(const std::vector<std::string>& array);

    const std::vector<double>& zeroOffsets() const { return m_zeroOffsets; }

protected:
    /// NaN out of range. Of an input of exactly 32 a result that is only a rounding error becomes 0, for
    /// that is how people try 32 °F; intended, although it holds for 32 of any unit of the quantity.
    double quantityByFormula(double q, int fromUnit, int toUnit) const override;
    /// What is lost where the zeros of the scales are subtracted counts too.
    double roundingError(double q, int fromUnit, int toUnit) const override;

private:
    OffsetLinearUnitConverter(const std::vector<std::string>& array, std::vector<double> zeroOffsets);

    std::vector<double> m_zeroOffsets;
};

} // namespace velmora
