#include "toolkit/OrvPickTableViewController.h"

#include "platform/screens/NavigationController.h"
#include "toolkit/OrvSettingsCell.h"

namespace velmora {

OrvPickTableViewController::OrvPickTableViewController(std::shared_ptr<OrvSettingsCell> cell)
    : m_cell(std::move(cell)) {
    setTitle(m_cell->title());
}

std::vector<std::string> OrvPickTableViewController::items() const { return m_cell->items(); }

int OrvPickTableViewController::index() const { return m_cell->index(); }

void OrvPickTableViewController::choose(int index) {
    if (m_cell->choose(index)) {
        if (NavigationController* stack = navigationController()) {
            stack->pop();
        }
    }
}

} // namespace velmora
