#pragma once

#include "toolkit/OrvSettingsCell.h"

#include <memory>

namespace velmora {

/// On or off.
class OrvSwitchSettingsCell final : public OrvBoundSettingsCell {
public:
    using OrvBoundSettingsCell::OrvBoundSettingsCell;

    Kind kind() const override { return Kind::Switch; }
    int index() const override { return valueAsIndex(); }
    bool choose(int index) override;
};

/// One of a few texts; the value is the index of the chosen one. A value past them counts round: the
/// tablet's display modes 2 and 3, which files hold, have the keys of 0 and 1.
class OrvChoiceSettingsCell : public OrvBoundSettingsCell {
public:
    OrvChoiceSettingsCell(std::string title, Binding binding, std::vector<std::string> items)
        : OrvBoundSettingsCell(std::move(title), std::move(binding)), m_items(std::move(items)) {}

    std::vector<std::string> items() const override { return m_items; }
    int index() const override;
    std::string valueText() const override;
    bool choose(int index) override;

private:
    std::vector<std::string> m_items;
};

/// The choices side by side in the row.
class OrvSegmentedControlSettingsCell final : public OrvChoiceSettingsCell {
public:
    using OrvChoiceSettingsCell::OrvChoiceSettingsCell;
    Kind kind() const override { return Kind::Segmented; }
};

/// The choices on a screen of their own, which a tap opens.
class OrvListPickSettingsCell final : public OrvChoiceSettingsCell,
                                      public std::enable_shared_from_this<OrvListPickSettingsCell> {
public:
    using OrvChoiceSettingsCell::OrvChoiceSettingsCell;
    Kind kind() const override { return Kind::ListPick; }
    void tapped(const Push& push) override;
};

} // namespace velmora
