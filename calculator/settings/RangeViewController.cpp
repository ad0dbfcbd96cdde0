#include "calculator/settings/RangeViewController.h"

#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "calculator/settings/SettingsRows.h"
#include "platform/screens/NavigationController.h"

namespace velmora {

namespace {

/// The section of the settings that holds the range; one that does not exist for functions.
int rangeSection() {
    const GraphTypeRow* type = graphTypeRow(Model::m().graphType());
    return type && type->hasRange() ? settingsSectionOfKey(type->rangeStartKey) : kSettingsSectionCount;
}

} // namespace

RangeViewController::RangeViewController() { setTitle("Range"); }

int RangeViewController::rawNumberOfRowsInRawSection(int /*section*/) const {
    return settingsRowCount(rangeSection());
}

std::string RangeViewController::titleForHeaderInRawSection(int /*section*/) const {
    return settingsSectionTitle(rangeSection());
}

std::shared_ptr<OrvSettingsCell> RangeViewController::cellForRaw(int /*section*/, int row) {
    return settingsCell(rangeSection(), row);
}

void RangeViewController::viewWillAppear(bool animated) {
    OrvSettingsTableViewController::viewWillAppear(animated);
    NavigationController* stack = navigationController();
    if (stack && sections().empty()) {
        stack->pop(false);
    }
}

bool RangeViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
