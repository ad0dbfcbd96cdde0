#pragma once

#include <cstdint>
#include <vector>

namespace velmora {

/// Frames of sound in a second.
inline constexpr unsigned kSoundFramesPerSecond = 48000;

/// The sound of a key as signed 16-bit mono: a short tone that dies away, at a volume of 0 to 1. Its first
/// and last samples are silence, so that it begins and ends without a crackle.
std::vector<std::int16_t> clickSound(double volume);

} // namespace velmora
