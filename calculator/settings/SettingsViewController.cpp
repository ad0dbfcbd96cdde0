#include "calculator/settings/SettingsViewController.h"

#include "calculator/keyboard/FunctionListScreen.h"
#include "calculator/model/Model.h"
#include "calculator/settings/SettingsRows.h"
#include "platform/machine/Device.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "toolkit/OrvTextSettingsCell.h"

namespace velmora {

namespace {

struct RowPlace {
    int section;
    int row;
    bool operator==(const RowPlace&) const = default;
};

constexpr RowPlace kOrientations{0, 5};
constexpr RowPlace kPortraitLayout{1, 1};
constexpr RowPlace kPortraitDisplay{1, 2};
constexpr RowPlace kFonts{1, 3};
constexpr RowPlace kImplementationNotes{5, 2};

} // namespace

SettingsViewController::SettingsViewController() {
    setTitle("Settings");
    setTabImage("settings.png");
}

int SettingsViewController::rawNumberOfSectionsInTableView() const { return kSettingsSectionCount; }

int SettingsViewController::rawNumberOfRowsInRawSection(int section) const {
    return settingsRowCount(section);
}

std::string SettingsViewController::titleForHeaderInRawSection(int section) const {
    return settingsSectionTitle(section);
}

std::shared_ptr<OrvSettingsCell> SettingsViewController::cellForRaw(int section, int row) {
    if (RowPlace{section, row} == kImplementationNotes) {
        return std::make_shared<OrvButtonSettingsCell>("Implementation Notes",
                                                       [this] { pushComplexImplementationNotes(); });
    }
    return settingsCell(section, row);
}

bool SettingsViewController::hideCellAtSection(int section, int row) const {
    const RowPlace place{section, row};
    const bool isPhone = currentDevice().deviceClass() == DeviceClass::Phone;
    if (place == kPortraitDisplay && isPhone) {
        return true;
    }
    // Intended: the choice of the arrangement is built but not offered, whatever the display mode.
    if (place == kPortraitLayout) {
        return true;
    }
    // Intended: the ranges of θ and t are offered beside their equations.
    if (section >= kPolarRangeSection && section <= 5) {
        return true;
    }
    if (place == kFonts && !isPhone) {
        return true;
    }
    if (place == kOrientations && isPhone) {
        return true;
    }
    return OrvSettingsTableViewController::hideCellAtSection(section, row);
}

void SettingsViewController::pushComplexImplementationNotes() {
    NavigationController* stack = navigationController();
    auto notes = ScreenRegistry::shared().make("FunctionSelectViewController");
    auto* list = dynamic_cast<FunctionListScreen*>(notes.get());
    if (stack && list) {
        list->setFunctionListName("ComplexNumbersImplementationNotes");
        stack->push(std::move(notes));
    }
}

void SettingsViewController::viewWillAppear(bool animated) {
    OrvSettingsTableViewController::viewWillAppear(animated);
    Model::m().setSettingsHaveBeenAccessed(true);
}

bool SettingsViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
