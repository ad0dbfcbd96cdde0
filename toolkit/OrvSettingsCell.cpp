#include "toolkit/OrvSettingsCell.h"

#include "platform/screens/SettingsTargetRegistry.h"

namespace velmora {

bool OrvSettingsCell::choose(int /*index*/) { return false; }

bool OrvSettingsCell::setText(const std::string& /*text*/) { return false; }

void OrvSettingsCell::setFraction(double /*fraction*/) {}

void OrvSettingsCell::tapped(const Push& /*push*/) {}

bool OrvBoundSettingsCell::isEnabled() const {
    const SettingsTarget* target = SettingsTargetRegistry::shared().find(m_binding.target);
    return target && target->valueForKey(m_binding.key);
}

PropertyList OrvBoundSettingsCell::value() const {
    const SettingsTarget* target = SettingsTargetRegistry::shared().find(m_binding.target);
    return target ? target->valueForKey(m_binding.key).value_or(PropertyList()) : PropertyList();
}

bool OrvBoundSettingsCell::setValue(const PropertyList& value) {
    SettingsTarget* target = SettingsTargetRegistry::shared().find(m_binding.target);
    return target && target->setValueForKey(m_binding.key, value);
}

int OrvBoundSettingsCell::valueAsIndex() const {
    const PropertyList current = value();
    if (const auto on = current.asBool()) {
        return *on ? 1 : 0;
    }
    return static_cast<int>(current.asInteger().value_or(0));
}

} // namespace velmora
