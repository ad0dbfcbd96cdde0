#pragma once

#include "toolkit/OrvSettingsTableViewController.h"

namespace velmora {

/// The unit converter's one setting, on a page of its own: whether the extended set of units is offered.
class UnitConvertSettings final : public OrvSettingsTableViewController {
public:
    UnitConvertSettings();

    std::string className() const override { return "UnitConvertSettings"; }

    int rawNumberOfSectionsInTableView() const override { return 1; }
    int rawNumberOfRowsInRawSection(int section) const override;
    std::string titleForHeaderInRawSection(int section) const override;
    std::shared_ptr<OrvSettingsCell> cellForRaw(int section, int row) override;
    bool shouldAutorotate(Orientation orientation) const override;
};

} // namespace velmora
