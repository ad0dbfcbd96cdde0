#pragma once

namespace velmora {

/// A colour by its sRGB components, each 0 to 1. An alpha of 1 is opaque.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    /// The grey of a level from 0 (black) to 1 (white).
    static constexpr Color white(double level, double alpha = 1) { return {level, level, level, alpha}; }

    bool operator==(const Color&) const = default;
};

} // namespace velmora
