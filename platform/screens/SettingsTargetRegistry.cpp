#include "platform/screens/SettingsTargetRegistry.h"

#include "platform/text/Log.h"

#include <utility>

namespace velmora {

SettingsTargetRegistry& SettingsTargetRegistry::shared() {
    static SettingsTargetRegistry registry;
    return registry;
}

void SettingsTargetRegistry::registerTarget(std::string name, SettingsTarget& target) {
    m_targets.insert_or_assign(std::move(name), &target);
}

SettingsTarget* SettingsTargetRegistry::find(std::string_view name) const {
    const auto entry = m_targets.find(name);
    if (entry == m_targets.end()) {
        log("settings target not registered: " + std::string(name));
        return nullptr;
    }
    return entry->second;
}

} // namespace velmora
