#pragma once

#include "calculator/table/ValueTableView.h"
#include "toolkit/OrvSettingsTableViewController.h"

#include <memory>
#include <string>

namespace velmora {

/// Where the table starts and how far apart its rows are.
class EditStartXAndDxTableViewController final : public OrvSettingsTableViewController {
public:
    /// `variableName` may be empty.
    EditStartXAndDxTableViewController(std::shared_ptr<ValueTableView> target, std::string variableName);

    std::string className() const override { return "EditStartXAndDxTableViewController"; }

    int rawNumberOfSectionsInTableView() const override { return 1; }
    int rawNumberOfRowsInRawSection(int section) const override;
    std::string titleForHeaderInRawSection(int section) const override;
    std::shared_ptr<OrvSettingsCell> cellForRaw(int section, int row) override;
    bool shouldAutorotate(Orientation orientation) const override;

private:
    std::shared_ptr<ValueTableView> m_target; ///< kept alive while it is edited
    std::string m_variableName;
};

} // namespace velmora
