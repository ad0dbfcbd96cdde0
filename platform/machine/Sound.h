#pragma once

#include "platform/machine/InstallScope.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Plays short sounds by name ("click").
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// How the program's audio mixes with that of others.
    virtual void setCategory(std::string_view category) = 0;
    /// Makes a sound ready to be played without delay.
    virtual void preload(std::string_view name) = 0;
    /// Plays from the start; volume 0 to 1. A sound that does not exist is silent.
    virtual void play(std::string_view name, double volume) = 0;
};

/// Plays nothing and remembers what it was asked for.
class RecordingSoundPlayer final : public SoundPlayer {
public:
    struct Play {
        std::string name;
        double volume;
        bool operator==(const Play&) const = default;
    };

    void setCategory(std::string_view category) override { m_category = category; }
    void preload(std::string_view name) override { m_preloaded.emplace_back(name); }
    void play(std::string_view name, double volume) override {
        m_played.push_back({std::string(name), volume});
    }

    const std::string& category() const { return m_category; }
    const std::vector<std::string>& preloaded() const { return m_preloaded; }
    const std::vector<Play>& played() const { return m_played; }

private:
    std::string m_category;
    std::vector<std::string> m_preloaded;
    std::vector<Play> m_played;
};

using SoundPlayerScope = InstallScope<SoundPlayer>;

/// The player in force; a silent one while none is installed.
SoundPlayer& soundPlayer();

} // namespace velmora
