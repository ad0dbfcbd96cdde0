#include "platform/files/SavingRegistry.h"

#include <algorithm>
#include <utility>

namespace velmora {

SavingRegistry& SavingRegistry::shared() {
    static SavingRegistry registry;
    return registry;
}

void SavingRegistry::registerSaver(std::string name, std::function<void()> saver) {
    const auto known = std::ranges::find(m_savers, name, &Saver::name);
    if (known != m_savers.end()) {
        known->save = std::move(saver);
    } else {
        m_savers.push_back({std::move(name), std::move(saver)});
    }
}

void SavingRegistry::saveAll() const {
    // A copy, since a saver that is made on first use may register itself.
    const auto savers = m_savers;
    for (const Saver& saver : savers) {
        if (saver.save) {
            saver.save();
        }
    }
}

} // namespace velmora
