#include "calculator/settings/SettingsRows.h"

#include "calculator/model/Model.h"
#include "calculator/model/ModelProperties.h"
#include "toolkit/OrvChoiceSettingsCell.h"
#include "toolkit/OrvNumberSettingsCell.h"
#include "toolkit/OrvTextSettingsCell.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::array kSectionTitles{"Calculator",       "Keyboard",        "Graph",          "Polar Graph",
                                    "Parametric Graph", "Complex Numbers", "Unit Converter", "About"};
static_assert(kSectionTitles.size() == kSettingsSectionCount);

/// A row that edits no property of the model; those stand in the model's own table.
struct OtherRow {
    int section;
    std::shared_ptr<OrvSettingsCell> (*make)();
};

const std::array kOtherRows{
    OtherRow{5,
             []() -> std::shared_ptr<OrvSettingsCell> {
                 return std::make_shared<OrvPlainTextSettingsCell>("Implementation Notes");
             }}, // made anew by the table, which knows what it does
    OtherRow{6,
             []() -> std::shared_ptr<OrvSettingsCell> {
                 return std::make_shared<OrvSegmentedControlSettingsCell>(
                     "Units", OrvBoundSettingsCell::Binding{"UnitConverterModel", "moreUnits"},
                     std::vector<std::string>{"Default", "More"});
             }},
    OtherRow{7,
             []() -> std::shared_ptr<OrvSettingsCell> {
                 return std::make_shared<OrvSubTableSettingsCell>("About", "AboutPage");
             }},
};

/// While one scale holds for both axes, the upper bound follows from the others.
bool isReplacedBySameScale(const ModelProperty& property) {
    return property.key == "yMaxForGraph" && Model::m().sameScaleXAndY();
}

std::shared_ptr<OrvSettingsCell> newCell(const ModelProperty& property) {
    if (isReplacedBySameScale(property)) {
        return std::make_shared<OrvPlainTextSettingsCell>("Max Y is set for same scale");
    }
    const SettingLook& look = property.look;
    OrvBoundSettingsCell::Binding binding{"Model", std::string(property.key)};
    switch (look.kind) {
    case SettingKind::ListPick:
        return std::make_shared<OrvListPickSettingsCell>(look.title, std::move(binding), look.items);
    case SettingKind::Integer:
        return std::make_shared<OrvIntegerSettingsCell>(look.title, std::move(binding),
                                                        static_cast<int>(property.minimum),
                                                        static_cast<int>(property.maximum));
    case SettingKind::Switch:
        return std::make_shared<OrvSwitchSettingsCell>(look.title, std::move(binding));
    case SettingKind::Double:
        return std::make_shared<OrvDoubleSettingsCell>(look.title, std::move(binding));
    case SettingKind::Segmented:
        return std::make_shared<OrvSegmentedControlSettingsCell>(look.title, std::move(binding), look.items);
    case SettingKind::None:
        break;
    }
    return nullptr;
}

bool hasRow(const ModelProperty& property, int section) {
    return property.look.kind != SettingKind::None && property.look.section == section;
}

} // namespace

int settingsSectionOfKey(std::string_view key) {
    const ModelProperty* property = modelProperty(key);
    return property && property->look.kind != SettingKind::None ? property->look.section
                                                                : kSettingsSectionCount;
}

int settingsRowCount(int section) {
    const auto isHere = [section](const auto& row) { return row.section == section; };
    return static_cast<int>(
        std::ranges::count_if(modelProperties(),
                              [section](const ModelProperty& row) { return hasRow(row, section); }) +
        std::ranges::count_if(kOtherRows, isHere));
}

std::string settingsSectionTitle(int section) {
    return section >= 0 && section < kSettingsSectionCount ? kSectionTitles[static_cast<std::size_t>(section)]
                                                           : "Missing Title";
}

std::shared_ptr<OrvSettingsCell> settingsCell(int section, int row) {
    for (const ModelProperty& property : modelProperties()) {
        if (hasRow(property, section) && row-- == 0) {
            auto cell = newCell(property);
            cell->setExplanation(property.look.explanation);
            return cell;
        }
    }
    for (const OtherRow& other : kOtherRows) {
        if (other.section == section && row-- == 0) {
            return other.make();
        }
    }
    return std::make_shared<OrvPlainTextSettingsCell>("Undefined Cell");
}

} // namespace velmora
