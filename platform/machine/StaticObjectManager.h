#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace velmora {

/// The images and sounds that screens share: each is found or loaded once, on first use.
class StaticObjectManager {
public:
    static StaticObjectManager& shared();

    /// Loads a sound ahead of its first use.
    void preloadSound(std::string_view name);
    /// Plays a sound, loading it first when that has not happened yet; the volume is clamped to 0 to 1.
    void playSound(std::string_view name, double volume = 1);

    /// Makes an image known: its name on screens ("calculator.png") and where the drawing layer finds it.
    void registerImage(std::string name, std::string source);
    /// Where the image of that name is found; nothing, logged once a name, when it is unknown.
    std::optional<std::string> imageSource(std::string_view name);

    /// Forgets every sound and image.
    void reset();

private:
    StaticObjectManager() = default;

    std::set<std::string, std::less<>> m_loadedSounds;
    std::map<std::string, std::string, std::less<>> m_images;
    std::set<std::string, std::less<>> m_missingImages;
};

} // namespace velmora
