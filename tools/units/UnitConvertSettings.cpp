#include "tools/units/UnitConvertSettings.h"

#include "calculator/model/Model.h"
#include "calculator/settings/SettingsRows.h"

namespace velmora {

UnitConvertSettings::UnitConvertSettings() { setTitle("Units"); }

int UnitConvertSettings::rawNumberOfRowsInRawSection(int /*section*/) const {
    return settingsRowCount(kUnitConverterSection);
}

std::string UnitConvertSettings::titleForHeaderInRawSection(int /*section*/) const {
    return settingsSectionTitle(kUnitConverterSection);
}

std::shared_ptr<OrvSettingsCell> UnitConvertSettings::cellForRaw(int /*section*/, int row) {
    return settingsCell(kUnitConverterSection, row);
}

bool UnitConvertSettings::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
