#pragma once

#include "toolkit/OrvSettingsTableViewController.h"

namespace velmora {

/// The range that polar or parametric curves are drawn over, by the present graph type; empty for
/// functions, whose range is the graph's own.
class RangeViewController final : public OrvSettingsTableViewController {
public:
    RangeViewController();

    std::string className() const override { return "RangeViewController"; }

    int rawNumberOfSectionsInTableView() const override { return 1; }
    int rawNumberOfRowsInRawSection(int section) const override;
    std::string titleForHeaderInRawSection(int section) const override;
    std::shared_ptr<OrvSettingsCell> cellForRaw(int section, int row) override;
    /// A page without rows, which the type has left behind, leads back by itself.
    void viewWillAppear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;
};

} // namespace velmora
