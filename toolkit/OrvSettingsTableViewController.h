#pragma once

#include "platform/screens/ViewController.h"
#include "toolkit/OrvSettingsCell.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

/// A table of settings rows in sections. Sections and rows are counted twice: raw, with the hidden rows,
/// and as displayed, without them. A section whose rows are all hidden is not displayed.
class OrvSettingsTableViewController : public ViewController {
public:
    struct Section {
        std::string title;
        std::vector<std::shared_ptr<OrvSettingsCell>> cells;
    };

    std::string qmlFile() const override { return "SettingsTable.qml"; }

    virtual int rawNumberOfSectionsInTableView() const = 0;
    virtual int rawNumberOfRowsInRawSection(int section) const = 0;
    virtual std::string titleForHeaderInRawSection(int section) const = 0;
    /// The row at a raw position; never null.
    virtual std::shared_ptr<OrvSettingsCell> cellForRaw(int section, int row) = 0;
    virtual bool hideCellAtSection(int section, int row) const;

    /// What is displayed.
    const std::vector<Section>& sections() const { return m_sections; }
    /// Makes the rows anew.
    void reload();

    // What a person does with a displayed row. Every change reloads the table, for one row may decide what
    // another one shows.
    void choose(OrvSettingsCell& cell, int index);
    void setText(OrvSettingsCell& cell, const std::string& text);
    void setFraction(OrvSettingsCell& cell, double fraction);
    void tap(OrvSettingsCell& cell);

    /// Emitted after a reload.
    Signal<>& reloaded() { return m_reloaded; }

    void viewWillAppear(bool animated) override;

private:
    std::vector<Section> m_sections;
    Signal<> m_reloaded;
};

} // namespace velmora
