#pragma once

#include <cmath>

namespace velmora {

// Points, sizes and vectors of drawings in single precision, as the screen has them.

struct CGPoint {
    float x = 0;
    float y = 0;
    bool operator==(const CGPoint&) const = default;
};

struct CGSize {
    float width = 0;
    float height = 0;
    bool operator==(const CGSize&) const = default;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
    bool operator==(const CGRect&) const = default;
};

inline CGPoint vectorSum(CGPoint a, CGPoint b) { return {a.x + b.x, a.y + b.y}; }

inline CGPoint vectorDifference(CGPoint a, CGPoint b) { return {a.x - b.x, a.y - b.y}; }

/// The vector times the factor, multiplied in double precision.
inline CGPoint scalarProduct(CGPoint vector, double factor) {
    return {static_cast<float>(static_cast<double>(vector.x) * factor),
            static_cast<float>(static_cast<double>(vector.y) * factor)};
}

/// The vector of length 1 in that direction; the zero vector stays as it is.
inline CGPoint normalizedVector(CGPoint vector) {
    const float length = std::sqrt(vector.x * vector.x + vector.y * vector.y);
    return length == 0 ? vector : scalarProduct(vector, 1 / static_cast<double>(length));
}

/// The rectangle of that size about the centre.
inline CGRect CGRectMakeCenter(CGPoint centre, CGSize size) {
    return {vectorDifference(centre, scalarProduct({size.width, size.height}, 0.5)), size};
}

} // namespace velmora
