#include "ui/machine/AlsaSoundPlayer.h"

#include "ui/machine/ClickSound.h"

#include <alsa/asoundlib.h>

#include <chrono>
#include <memory>
#include <vector>

namespace velmora {

namespace {

constexpr unsigned kLatencyMicroseconds = 30000;
// An open device keeps the sound hardware awake, so it is given back when no key is pressed for a while.
constexpr std::chrono::seconds kIdleTime(3);

/// Every other way to lose the device is silence as well; the library itself would write to the terminal.
void ignoreAlsaMessage(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                       const char* /*format*/, ...) {} // NOLINT(cert-dcl50-cpp): the library's signature

struct DeviceCloser {
    void operator()(snd_pcm_t* device) const { snd_pcm_close(device); }
};
using SoundDevice = std::unique_ptr<snd_pcm_t, DeviceCloser>;

SoundDevice openDevice() {
    snd_pcm_t* opened = nullptr;
    if (snd_pcm_open(&opened, "default", SND_PCM_STREAM_PLAYBACK, 0) < 0) {
        return nullptr;
    }
    SoundDevice device(opened);
    constexpr unsigned kMono = 1;
    constexpr int kResample = 1;
    const int problem = snd_pcm_set_params(opened, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED, kMono,
                                           kSoundFramesPerSecond, kResample, kLatencyMicroseconds);
    return problem < 0 ? nullptr : std::move(device);
}

bool writeSamples(snd_pcm_t* device, const std::vector<std::int16_t>& samples) {
    snd_pcm_prepare(device);
    const snd_pcm_sframes_t written = snd_pcm_writei(device, samples.data(), samples.size());
    return written >= 0 && snd_pcm_drain(device) >= 0;
}

} // namespace

AlsaSoundPlayer::~AlsaSoundPlayer() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_one();
    if (m_player.joinable()) {
        m_player.join();
    }
}

void AlsaSoundPlayer::setCategory(std::string_view /*category*/) {}

void AlsaSoundPlayer::preload(std::string_view /*name*/) {} // sounds are made within microseconds

void AlsaSoundPlayer::play(std::string_view name, double volume) {
    if (name != "click" || !(volume > 0)) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_requestedVolume = volume;
    }
    if (!m_player.joinable()) {
        m_player = std::thread([this] { playRequests(); });
    }
    m_changed.notify_one();
}

void AlsaSoundPlayer::playRequests() {
    snd_lib_error_set_handler(ignoreAlsaMessage);
    SoundDevice device;
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        const auto isDue = [this] { return m_isEnding || m_requestedVolume; };
        if (!m_changed.wait_for(lock, kIdleTime, isDue)) {
            device.reset();
            m_changed.wait(lock, isDue);
        }
        if (!m_requestedVolume || m_isEnding) {
            continue;
        }
        const double volume = *m_requestedVolume;
        m_requestedVolume.reset();
        lock.unlock();
        if (!device) {
            device = openDevice();
        }
        if (device && !writeSamples(device.get(), clickSound(volume))) {
            device.reset(); // unplugged, perhaps; the next press opens what there is then
        }
        lock.lock();
    }
}

} // namespace velmora
