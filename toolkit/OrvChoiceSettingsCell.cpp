#include "toolkit/OrvChoiceSettingsCell.h"

#include "platform/files/PropertyList.h"
#include "toolkit/OrvPickTableViewController.h"

namespace velmora {

bool OrvSwitchSettingsCell::choose(int index) {
    return (index == 0 || index == 1) && setValue(PropertyList(index == 1));
}

int OrvChoiceSettingsCell::index() const {
    const int value = valueAsIndex();
    return m_items.empty() || value < 0 ? value : value % static_cast<int>(m_items.size());
}

std::string OrvChoiceSettingsCell::valueText() const {
    const auto chosen = static_cast<std::size_t>(index());
    return chosen < m_items.size() ? m_items[chosen] : std::string();
}

bool OrvChoiceSettingsCell::choose(int index) {
    return index >= 0 && index < static_cast<int>(m_items.size()) && setValue(PropertyList(index));
}

void OrvListPickSettingsCell::tapped(const Push& push) {
    push(std::make_shared<OrvPickTableViewController>(shared_from_this()));
}

} // namespace velmora
