#include "toolkit/OrvTextSettingsCell.h"

#include "platform/files/PropertyList.h"
#include "platform/screens/ScreenRegistry.h"

namespace velmora {

std::string OrvTextSettingsCell::valueText() const {
    const PropertyList current = value();
    return current.asText() ? *current.asText() : std::string();
}

bool OrvTextSettingsCell::setText(const std::string& text) { return setValue(PropertyList(text)); }

void OrvButtonSettingsCell::tapped(const Push& /*push*/) { m_action(); }

void OrvSubTableSettingsCell::tapped(const Push& push) {
    if (auto screen = ScreenRegistry::shared().make(m_className)) {
        push(std::move(screen));
    }
}

} // namespace velmora
