#include "ui/machine/ClickSound.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

// A wooden tap: a low body and a brighter partial that is gone sooner.
constexpr double kSeconds = 0.030;
constexpr double kAttackSeconds = 0.0006;
constexpr double kReleaseSeconds = 0.004;

struct Partial {
    double hertz;
    double strength;
    double decaySeconds;
};
constexpr Partial kPartials[]{{1150, 0.62, 0.0060}, {2720, 0.28, 0.0028}, {410, 0.10, 0.0090}};

double ramp(double seconds, double length) { return std::clamp(seconds / length, 0.0, 1.0); }

} // namespace

std::vector<std::int16_t> clickSound(double volume) {
    constexpr double kLoudest = 32767;
    const auto frames = static_cast<std::size_t>(kSeconds * kSoundFramesPerSecond);
    std::vector<std::int16_t> samples(frames);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const double time = static_cast<double>(frame) / kSoundFramesPerSecond;
        const double left = static_cast<double>(frames - 1 - frame) / kSoundFramesPerSecond;
        double level = 0;
        for (const Partial& partial : kPartials) {
            level += partial.strength * std::exp(-time / partial.decaySeconds) *
                     std::sin(2 * std::numbers::pi * partial.hertz * time);
        }
        level *= ramp(time, kAttackSeconds) * ramp(left, kReleaseSeconds);
        samples[frame] =
            static_cast<std::int16_t>(std::lround(kLoudest * std::clamp(volume, 0.0, 1.0) * level));
    }
    return samples;
}

} // namespace velmora
