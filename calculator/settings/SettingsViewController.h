#pragma once

#include "toolkit/OrvSettingsTableViewController.h"

namespace velmora {

/// The settings of the whole program. Some sections and rows are built but never shown; intended: their
/// settings have no use yet on the screens there are, or are reached from the equations.
class SettingsViewController final : public OrvSettingsTableViewController {
public:
    SettingsViewController();

    std::string className() const override { return "SettingsViewController"; }

    int rawNumberOfSectionsInTableView() const override;
    int rawNumberOfRowsInRawSection(int section) const override;
    std::string titleForHeaderInRawSection(int section) const override;
    std::shared_ptr<OrvSettingsCell> cellForRaw(int section, int row) override;
    bool hideCellAtSection(int section, int row) const override;
    void pushComplexImplementationNotes();

    void viewWillAppear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;
};

} // namespace velmora
