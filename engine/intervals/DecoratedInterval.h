#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace velmora {

/// What is known of a function on a whole box, weakest first (IEEE 1788-2015, clause 8): each grade says all
/// that the grades below it say.
enum class Decoration : std::uint8_t {
    NowhereDefined,       ///< no point of the box has a real value
    PossiblyUndefined,    ///< nothing is known; some points may have no real value
    Defined,              ///< every point has a real value
    DefinedAndContinuous, ///< and nothing jumps
};

/// An enclosure of the real values of a function on a box: no value lies outside [lowest, highest]. An end
/// that is infinite may be a value, for numbers overflow.
struct DecoratedInterval {
    double lowest;
    double highest;
    Decoration decoration = Decoration::DefinedAndContinuous;
    /// Whether a point of the box may have a complex value. What is made of it may be real again, as in
    /// sqrt(x)^2, so only few operations know anything of their result then.
    bool mayBeComplex = false;

    static constexpr DecoratedInterval point(double value) { return {value, value}; }
    /// Nothing is known, not even that the values are real.
    static constexpr DecoratedInterval unknown() {
        return {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
                Decoration::PossiblyUndefined, true};
    }
    /// Real values anywhere, or none.
    static constexpr DecoratedInterval anywhere() {
        return {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
                Decoration::PossiblyUndefined, false};
    }
    static constexpr DecoratedInterval nowhere(bool mayBeComplex = false) {
        return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN(),
                Decoration::NowhereDefined, mayBeComplex};
    }

    constexpr bool isEmpty() const { return decoration == Decoration::NowhereDefined; }
    constexpr bool isPoint() const { return lowest == highest; }
    constexpr bool contains(double value) const { return lowest <= value && value <= highest; }
    constexpr double width() const { return highest - lowest; }

    /// The same values with at most that much said of them.
    constexpr DecoratedInterval atMost(Decoration grade) const {
        return {lowest, highest, std::min(decoration, grade), mayBeComplex};
    }
};

/// A double below or above the value, at most one farther than the next, without a branch (Rump, Zimmermann,
/// Boldo and Melquiond, Computing predecessor and successor in rounding to nearest, 2009). An infinite value
/// may become the largest finite one; NaN stays.
constexpr double nextAbove(double value) {
    constexpr double kShare = 0x1.0000000000001p-53;
    constexpr double kLargest = std::numeric_limits<double>::max();
    const double magnitude = std::min(value < 0 ? -value : value, kLargest);
    return value + (magnitude * kShare + std::numeric_limits<double>::denorm_min());
}
constexpr double nextBelow(double value) { return -nextAbove(-value); }

/// The values of either.
constexpr DecoratedInterval hull(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (a.isEmpty() || b.isEmpty()) {
        const DecoratedInterval& other = a.isEmpty() ? b : a;
        const bool complex = a.mayBeComplex || b.mayBeComplex;
        return {other.lowest, other.highest,
                a.isEmpty() && b.isEmpty() ? Decoration::NowhereDefined : Decoration::PossiblyUndefined,
                complex};
    }
    return {std::min(a.lowest, b.lowest), std::max(a.highest, b.highest),
            std::min(a.decoration, b.decoration), a.mayBeComplex || b.mayBeComplex};
}

} // namespace velmora
