#include "engine/intervals/IntervalArithmetic.h"

#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Ends {
    double below; ///< the largest double not above the exact value
    double above; ///< the smallest not below
};

/// The doubles about an exact value that is `rounded` plus an error of that sign.
Ends around(double rounded, double error) {
    if (error == 0) {
        return {rounded, rounded};
    }
    return error < 0 ? Ends{nextBelow(rounded), rounded} : Ends{rounded, nextAbove(rounded)};
}

/// Whether a number has so few digits that its product with another such number is exact, as the whole
/// numbers that people type have.
bool isShort(double a) { return static_cast<double>(static_cast<float>(a)) == a; }

/// What overflowed may be any finite number beyond the largest.
Ends afterOverflow(double rounded) {
    constexpr double kLargest = std::numeric_limits<double>::max();
    return rounded > 0 ? Ends{kLargest, kInfinity} : Ends{-kInfinity, -kLargest};
}

Ends sumOfEnds(double a, double b) {
    const double rounded = a + b;
    if (!std::isfinite(rounded)) {
        return std::isfinite(a) && std::isfinite(b) ? afterOverflow(rounded) : Ends{rounded, rounded};
    }
    const double partOfB = rounded - a;
    return around(rounded, (a - (rounded - partOfB)) + (b - partOfB));
}

Ends productOfEnds(double a, double b) {
    if (a == 0 || b == 0) {
        return {0, 0}; // also with an infinite bound, which stands for values that are large and finite
    }
    const double rounded = a * b;
    if (!std::isfinite(rounded)) {
        return std::isfinite(a) && std::isfinite(b) ? afterOverflow(rounded) : Ends{rounded, rounded};
    }
    return isShort(a) && isShort(b) ? Ends{rounded, rounded} : Ends{nextBelow(rounded), nextAbove(rounded)};
}

Ends quotientOfEnds(double a, double b) {
    if (a == 0 || std::isinf(b)) {
        return std::isinf(a) ? Ends{-kInfinity, kInfinity} : Ends{-0.0 + 0.0, 0.0};
    }
    const double rounded = a / b;
    if (!std::isfinite(rounded)) {
        return std::isfinite(a) ? afterOverflow(rounded) : Ends{rounded, rounded};
    }
    const bool isExact = isShort(rounded) && isShort(b) && rounded * b == a;
    return isExact ? Ends{rounded, rounded} : Ends{nextBelow(rounded), nextAbove(rounded)};
}

/// The pairs of ends whose products are the least and the greatest.
struct Corners {
    double leftOfLowest;
    double rightOfLowest;
    double leftOfHighest;
    double rightOfHighest;
};

/// Where both factors change their sign, one pair of each two that compete.
Corners cornersOfProduct(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (a.lowest >= 0) {
        return b.lowest >= 0    ? Corners{a.lowest, b.lowest, a.highest, b.highest}
               : b.highest <= 0 ? Corners{a.highest, b.lowest, a.lowest, b.highest}
                                : Corners{a.highest, b.lowest, a.highest, b.highest};
    }
    if (a.highest <= 0) {
        return b.lowest >= 0    ? Corners{a.lowest, b.highest, a.highest, b.lowest}
               : b.highest <= 0 ? Corners{a.highest, b.highest, a.lowest, b.lowest}
                                : Corners{a.lowest, b.highest, a.lowest, b.lowest};
    }
    return b.lowest >= 0    ? Corners{a.lowest, b.highest, a.highest, b.highest}
           : b.highest <= 0 ? Corners{a.highest, b.lowest, a.lowest, b.lowest}
                            : Corners{a.lowest, b.highest, a.highest, b.highest};
}

/// What both inputs allow to be said. Where both may be complex, or a complex one meets a factor of 0, the
/// result may be real without its inputs being so.
Decoration gradeOf(const DecoratedInterval& a, const DecoratedInterval& b) {
    return std::min(a.decoration, b.decoration);
}

bool mayBecomeRealAgain(const DecoratedInterval& a, const DecoratedInterval& b, bool isProduct) {
    if (a.mayBeComplex && b.mayBeComplex) {
        return true;
    }
    const DecoratedInterval& real = a.mayBeComplex ? b : a;
    return (a.mayBeComplex || b.mayBeComplex) && isProduct && (real.isEmpty() || real.contains(0));
}

bool canBeInfinite(const DecoratedInterval& a) { return a.lowest == -kInfinity || a.highest == kInfinity; }

} // namespace

DecoratedInterval negative(const DecoratedInterval& a) {
    return {-a.highest, -a.lowest, a.decoration, a.mayBeComplex};
}

DecoratedInterval sum(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (mayBecomeRealAgain(a, b, false)) {
        return DecoratedInterval::unknown();
    }
    const bool mayBeComplex = a.mayBeComplex || b.mayBeComplex;
    if (a.isEmpty() || b.isEmpty()) {
        return DecoratedInterval::nowhere(mayBeComplex);
    }
    Decoration grade = gradeOf(a, b);
    if ((a.lowest == -kInfinity && b.highest == kInfinity) ||
        (a.highest == kInfinity && b.lowest == -kInfinity)) {
        grade = Decoration::PossiblyUndefined;
    }
    // An end that is infinite with both signs has no sum; nothing is known beyond it.
    const double lowest = sumOfEnds(a.lowest, b.lowest).below;
    const double highest = sumOfEnds(a.highest, b.highest).above;
    return {std::isnan(lowest) ? -kInfinity : lowest, std::isnan(highest) ? kInfinity : highest, grade,
            mayBeComplex};
}

DecoratedInterval difference(const DecoratedInterval& a, const DecoratedInterval& b) {
    return sum(a, negative(b));
}

DecoratedInterval product(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (mayBecomeRealAgain(a, b, true)) {
        return DecoratedInterval::unknown();
    }
    const bool mayBeComplex = a.mayBeComplex || b.mayBeComplex;
    if (a.isEmpty() || b.isEmpty()) {
        return DecoratedInterval::nowhere(mayBeComplex);
    }
    Decoration grade = gradeOf(a, b);
    if ((canBeInfinite(a) && b.contains(0)) || (canBeInfinite(b) && a.contains(0))) {
        grade = Decoration::PossiblyUndefined;
    }
    const Corners corners = cornersOfProduct(a, b);
    double lowest = productOfEnds(corners.leftOfLowest, corners.rightOfLowest).below;
    double highest = productOfEnds(corners.leftOfHighest, corners.rightOfHighest).above;
    if (a.lowest < 0 && a.highest > 0 && b.lowest < 0 && b.highest > 0) {
        lowest = std::min(lowest, productOfEnds(a.highest, b.lowest).below);
        highest = std::max(highest, productOfEnds(a.lowest, b.lowest).above);
    }
    return {lowest, highest, grade, mayBeComplex};
}

DecoratedInterval quotient(const DecoratedInterval& a, const DecoratedInterval& b) {
    if (a.mayBeComplex && b.mayBeComplex) {
        return DecoratedInterval::unknown();
    }
    if (b.mayBeComplex && (a.isEmpty() || a.contains(0))) {
        return DecoratedInterval::unknown(); // 0 divided by a complex number is the real number 0
    }
    const bool mayBeComplex = a.mayBeComplex || b.mayBeComplex;
    if (a.isEmpty() || b.isEmpty() || (b.lowest == 0 && b.highest == 0)) {
        return DecoratedInterval::nowhere(mayBeComplex);
    }
    const Decoration grade = gradeOf(a, b);
    if (!b.contains(0)) {
        const bool bothInfinite = canBeInfinite(a) && canBeInfinite(b);
        const std::array corners{quotientOfEnds(a.lowest, b.lowest), quotientOfEnds(a.lowest, b.highest),
                                 quotientOfEnds(a.highest, b.lowest), quotientOfEnds(a.highest, b.highest)};
        double lowest = kInfinity;
        double highest = -kInfinity;
        for (const Ends& corner : corners) {
            lowest = std::min(lowest, corner.below);
            highest = std::max(highest, corner.above);
        }
        return {lowest, highest, bothInfinite ? Decoration::PossiblyUndefined : grade, mayBeComplex};
    }
    const auto undefinedAtZero = [&](double lowest, double highest) {
        return DecoratedInterval{lowest, highest, Decoration::PossiblyUndefined, mayBeComplex};
    };
    // A divisor that reaches 0 from one side only leaves the sign of the quotient known.
    if (b.lowest == 0 && a.lowest > 0) {
        return undefinedAtZero(quotientOfEnds(a.lowest, b.highest).below, kInfinity);
    }
    if (b.lowest == 0 && a.highest < 0) {
        return undefinedAtZero(-kInfinity, quotientOfEnds(a.highest, b.highest).above);
    }
    if (b.highest == 0 && a.lowest > 0) {
        return undefinedAtZero(-kInfinity, quotientOfEnds(a.lowest, b.lowest).above);
    }
    if (b.highest == 0 && a.highest < 0) {
        return undefinedAtZero(quotientOfEnds(a.highest, b.lowest).below, kInfinity);
    }
    return undefinedAtZero(-kInfinity, kInfinity);
}

DecoratedInterval square(const DecoratedInterval& a) {
    if (a.mayBeComplex) {
        return DecoratedInterval::unknown(); // i² is real
    }
    if (a.isEmpty()) {
        return a;
    }
    const double smaller = std::min(std::fabs(a.lowest), std::fabs(a.highest));
    const double larger = std::max(std::fabs(a.lowest), std::fabs(a.highest));
    return {a.contains(0) ? 0 : productOfEnds(smaller, smaller).below, productOfEnds(larger, larger).above,
            a.decoration};
}

DecoratedInterval cube(const DecoratedInterval& a) {
    if (a.mayBeComplex) {
        return DecoratedInterval::unknown();
    }
    if (a.isEmpty()) {
        return a;
    }
    const auto cubeOfEnd = [](double end) {
        const Ends squared = productOfEnds(end, end);
        return end < 0
                   ? Ends{productOfEnds(squared.above, end).below, productOfEnds(squared.below, end).above}
                   : Ends{productOfEnds(squared.below, end).below, productOfEnds(squared.above, end).above};
    };
    return {cubeOfEnd(a.lowest).below, cubeOfEnd(a.highest).above, a.decoration};
}

} // namespace velmora
