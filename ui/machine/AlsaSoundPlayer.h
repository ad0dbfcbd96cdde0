#pragma once

#include "platform/machine/Sound.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace velmora {

/// Plays the sound of keys on the system's sound device. Nothing is opened before the first sound; without
/// a device it is silent. A thread of its own does the work, so that a key never waits for the device.
class AlsaSoundPlayer final : public SoundPlayer {
public:
    AlsaSoundPlayer() = default;
    ~AlsaSoundPlayer() override;
    AlsaSoundPlayer(const AlsaSoundPlayer&) = delete;
    AlsaSoundPlayer& operator=(const AlsaSoundPlayer&) = delete;

    /// The device mixes the sounds of all programs in any case.
    void setCategory(std::string_view category) override;
    void preload(std::string_view name) override;
    void play(std::string_view name, double volume) override;

private:
    void playRequests();

    std::thread m_player;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<double> m_requestedVolume; // of the click to play next; faster presses share one
    bool m_isEnding = false;
};

} // namespace velmora
