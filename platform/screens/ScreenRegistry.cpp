#include "platform/screens/ScreenRegistry.h"

#include "platform/text/Log.h"

#include <utility>

namespace velmora {

ScreenRegistry& ScreenRegistry::shared() {
    static ScreenRegistry registry;
    return registry;
}

void ScreenRegistry::registerScreen(std::string name, Factory factory) {
    m_factories.insert_or_assign(std::move(name), std::move(factory));
}

std::shared_ptr<ViewController> ScreenRegistry::make(std::string_view name) const {
    const auto entry = m_factories.find(name);
    if (entry == m_factories.end() || !entry->second) {
        log("screen not registered: " + std::string(name));
        return nullptr;
    }
    return entry->second();
}

} // namespace velmora
