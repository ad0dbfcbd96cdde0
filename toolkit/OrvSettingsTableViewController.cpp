#include "toolkit/OrvSettingsTableViewController.h"

#include "platform/screens/NavigationController.h"

namespace velmora {

bool OrvSettingsTableViewController::hideCellAtSection(int /*section*/, int /*row*/) const { return false; }

void OrvSettingsTableViewController::reload() {
    std::vector<Section> sections;
    for (int section = 0; section < rawNumberOfSectionsInTableView(); ++section) {
        Section shown{titleForHeaderInRawSection(section), {}};
        for (int row = 0; row < rawNumberOfRowsInRawSection(section); ++row) {
            if (!hideCellAtSection(section, row)) {
                shown.cells.push_back(cellForRaw(section, row));
            }
        }
        if (!shown.cells.empty()) {
            sections.push_back(std::move(shown));
        }
    }
    // The former rows live until all have heard of the new ones, for one of them may be acting.
    const std::vector<Section> former = std::exchange(m_sections, std::move(sections));
    m_reloaded.emit();
}

void OrvSettingsTableViewController::choose(OrvSettingsCell& cell, int index) {
    cell.choose(index);
    reload();
}

void OrvSettingsTableViewController::setText(OrvSettingsCell& cell, const std::string& text) {
    cell.setText(text);
    reload();
}

void OrvSettingsTableViewController::setFraction(OrvSettingsCell& cell, double fraction) {
    cell.setFraction(fraction);
    reload();
}

void OrvSettingsTableViewController::tap(OrvSettingsCell& cell) {
    cell.tapped([this](std::shared_ptr<ViewController> screen) {
        if (NavigationController* stack = navigationController()) {
            stack->push(std::move(screen));
        }
    });
}

void OrvSettingsTableViewController::viewWillAppear(bool /*animated*/) { reload(); }

} // namespace velmora
