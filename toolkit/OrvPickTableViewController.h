#pragma once

#include "platform/screens/ViewController.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

class OrvSettingsCell;

/// The choices of a list pick row, with a mark at the chosen one. A choice leads back.
class OrvPickTableViewController final : public ViewController {
public:
    explicit OrvPickTableViewController(std::shared_ptr<OrvSettingsCell> cell);

    std::string className() const override { return "OrvPickTableViewController"; }
    std::string qmlFile() const override { return "PickTable.qml"; }

    std::vector<std::string> items() const;
    int index() const;
    void choose(int index);

private:
    std::shared_ptr<OrvSettingsCell> m_cell;
};

} // namespace velmora
