#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The plural of a unit's name: an "s" before the first " per" ("miles per hour"), else before the first
/// " (", else at the end.
std::string pluralizedString(std::string_view name);

/// One physical quantity with its units, and conversion between them by a factor.
///
/// It is made of an array of texts: the quantity's name ("++" in it marks a quantity whose scales start at
/// different zeros), the name of its main unit, and a text for each unit, "name=factor|plural#abbreviation".
/// The factor, 1 where it is left out, is the size of the unit in a reference unit of the quantity.
class UnitConverter {
public:
    virtual ~UnitConverter() = default;
    UnitConverter(const UnitConverter&) = delete;
    UnitConverter& operator=(const UnitConverter&) = delete;

    /// Nothing for fewer than three texts. A unit without "#" is logged, reported as a programming fault
    /// and has no abbreviation.
    static std::unique_ptr<UnitConverter> newConverterWithArray(const std::vector<std::string>& array);

    const std::string& unitsOfWhat() const { return m_unitsOfWhat; }
    const std::string& mainUnit() const { return m_mainUnit; }
    const std::vector<std::string>& unitNames() const { return m_unitNames; }
    const std::vector<std::string>& pluralUnitNames() const { return m_pluralUnitNames; }
    const std::vector<double>& unitConversions() const { return m_unitConversions; }
    const std::vector<std::string>& unitAbbreviations() const { return m_unitAbbreviations; }

    // Units are told by their index. Beyond the units there is nothing: no text, and 0 or NaN as stated.

    std::optional<std::string> abbreviationForUnitAtIndex(int index) const;
    /// The singular name for exactly 1 or -1 of the unit, the plural for any other quantity. Out of range
    /// it raises a debug alert.
    std::optional<std::string> nameForQuantity(double quantity, int index) const;
    /// How many of the other unit one of the unit is; 0 out of range.
    double oneOfUnitAtIndex(int from, int to) const;
    /// So much of the one unit, in the other; 0 out of range. A rounding error that hides a number of at most
    /// 14 digits is taken away, so that 3600000 joules are 1 kilowatt-hour (3600000 has no reciprocal in
    /// doubles whose product with it is 1, whatever the factors), and what is converted there and back is
    /// the number that was typed.
    double quantity(double q, int fromUnit, int toUnit) const;

protected:
    explicit UnitConverter(const std::vector<std::string>& array);
    bool isUnit(int index) const { return index >= 0 && index < static_cast<int>(m_unitNames.size()); }
    /// The conversion operation by operation; 0 or NaN out of range.
    virtual double quantityByFormula(double q, int fromUnit, int toUnit) const;
    /// How far rounding may have moved that result.
    virtual double roundingError(double q, int fromUnit, int toUnit) const;

private:
    void addUnit(std::string_view text);

    std::string m_unitsOfWhat;
    std::string m_mainUnit;
    std::vector<std::string> m_unitNames;
    std::vector<std::string> m_pluralUnitNames;
    std::vector<double> m_unitConversions;
    std::vector<std::string> m_unitAbbreviations;
};

/// The decimal number that a text begins with, whatever the locale; 0 when it begins with none. Too large a
/// number is infinite, too small a one 0.
double leadingNumber(std::string_view text);

} // namespace velmora
