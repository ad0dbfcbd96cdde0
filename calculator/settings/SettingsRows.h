#pragma once

#include "toolkit/OrvSettingsCell.h"

#include <memory>
#include <string>
#include <string_view>

namespace velmora {

/// What a settings row edits and how it looks, by its raw place in the table.
inline constexpr int kSettingsSectionCount = 8;
inline constexpr int kPolarRangeSection = 3;
inline constexpr int kParametricRangeSection = 4;
inline constexpr int kUnitConverterSection = 6;

/// The section with the row that edits a property; kSettingsSectionCount when none does.
int settingsSectionOfKey(std::string_view key);

int settingsRowCount(int section);
/// "Missing Title" for a section that does not exist.
std::string settingsSectionTitle(int section);
/// A new row; one that only says "Undefined Cell" for a place where there is none.
std::shared_ptr<OrvSettingsCell> settingsCell(int section, int row);

} // namespace velmora
