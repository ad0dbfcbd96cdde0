#pragma once

namespace velmora {

/// The unit of angles typed and shown. The numbers are those of the saved state.
enum class AngleMode { Radians = 0, Degrees = 1 };

} // namespace velmora
