#include "platform/machine/StaticObjectManager.h"

#include "platform/machine/Sound.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <utility>

namespace velmora {

StaticObjectManager& StaticObjectManager::shared() {
    static StaticObjectManager manager;
    return manager;
}

void StaticObjectManager::preloadSound(std::string_view name) {
    if (m_loadedSounds.emplace(name).second) {
        soundPlayer().preload(name);
    }
}

void StaticObjectManager::playSound(std::string_view name, double volume) {
    preloadSound(name);
    // Written so that a volume that is not a number becomes silence.
    soundPlayer().play(name, volume > 0 ? std::min(volume, 1.0) : 0.0);
}

void StaticObjectManager::registerImage(std::string name, std::string source) {
    m_images.insert_or_assign(std::move(name), std::move(source));
}

std::optional<std::string> StaticObjectManager::imageSource(std::string_view name) {
    const auto image = m_images.find(name);
    if (image != m_images.end()) {
        return image->second;
    }
    if (m_missingImages.emplace(name).second) {
        log("missing image: " + std::string(name));
    }
    return std::nullopt;
}

void StaticObjectManager::reset() {
    m_loadedSounds.clear();
    m_images.clear();
    m_missingImages.clear();
}

} // namespace velmora
