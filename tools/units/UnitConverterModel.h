#pragma once

#include "platform/files/KeptFile.h"
#include "platform/screens/SettingsTargetRegistry.h"
#include "tools/units/UnitConverter.h"

#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// The quantities that the unit converter knows, and what the user last chose. The quantities are read from
/// the resource "Units" when they are first asked for.
class UnitConverterModel final : public SettingsTarget {
public:
    /// The one model; made, with the saved choices, on first use.
    static UnitConverterModel& ucm();
    static void resetForTests();

    /// Where the choices are kept; nothing on a machine without a documents folder.
    static std::optional<std::filesystem::path> ucDataFilePath();
    /// Reads the saved choices; false when there are none. A file that cannot be understood is kept under
    /// another name.
    bool load();
    /// A file that was not read is read now instead.
    void save();

    void loadUnitConverterIfNeeded();
    void loadUnitConverter();
    /// The quantities in the order of the resource.
    const std::vector<std::unique_ptr<UnitConverter>>& unitConverterArray();

    /// Whether the extended set of units is offered. A change reads the quantities again.
    bool moreUnits() const { return m_moreUnits; }
    void setMoreUnits(bool moreUnits);

    const std::optional<std::string>& selectedQuantityName() const { return m_selectedQuantityName; }
    /// The chosen quantity; the first while none is chosen, or the chosen one is not offered.
    int selectedQuantityIndex();
    /// An index past the end chooses none.
    void setSelectedQuantityIndex(int index);

    /// The choice of a unit column (component 1 or 2) of a quantity, remembered by the unit's name. What
    /// does not exist is a programming fault and changes nothing.
    void selectPickerRow(int row, int component, int quantity);
    /// 0 while nothing is chosen or the unit is not offered.
    int selectedPickerRowForComponent(int component, int quantity);

    // The one setting, "moreUnits", as a switch or as the index of a choice.
    std::optional<PropertyList> valueForKey(std::string_view key) const override;
    bool setValueForKey(std::string_view key, const PropertyList& value) override;

private:
    using UnitPair = std::array<std::string, 2>;

    UnitConverterModel() = default;
    static std::unique_ptr<UnitConverterModel>& instance();
    UnitConverter* converter(int quantity);

    std::vector<std::unique_ptr<UnitConverter>> m_unitConverterArray;
    bool m_isLoaded = false;
    std::optional<std::string> m_selectedQuantityName;
    std::map<std::string, UnitPair> m_selectedUnitDictionary;
    bool m_moreUnits = false;
    std::optional<KeptFile> m_file;
};

} // namespace velmora
