#include "engine/functions/NormalDistribution.h"

#include "engine/numbers/DoubleDouble.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

DoubleDouble density(DoubleDouble a) {
    constexpr DoubleDouble kOneOverRootTwoPi{0x1.9884533d43651p-2, -0x1.cbc0d30ebfd15p-56};
    constexpr double kFarthest = 40; // beyond, the density is no double but 0
    return std::fabs(a.high) > kFarthest ? 0.0 : kOneOverRootTwoPi * exponential(scaledByTwo(a * a, -0.5));
}

/// The probability of a value beyond a on the upper side.
DoubleDouble upperTail(DoubleDouble a) {
    constexpr DoubleDouble kRootOfHalf{0x1.6a09e667f3bcdp-1, -0x1.bdd3413b26456p-55};
    constexpr double kFarthest = 40;
    if (std::fabs(a.high) > kFarthest) {
        return a.high > 0 ? 0.0 : 1.0;
    }
    const DoubleDouble magnitude = a.high < 0 ? -a : a;
    const DoubleDouble tail = scaledByTwo(complementaryErrorFunction(magnitude * kRootOfHalf), 0.5);
    return a.high < 0 ? 1.0 - tail : tail;
}

/// ∫ of the density over a narrow interval: its Taylor series about the middle m, integrated term by term.
/// The derivatives of even order are the density times the Hermite polynomials He₂ₖ(m).
DoubleDouble narrowIntegral(DoubleDouble middle, DoubleDouble width) {
    const DoubleDouble halfWidth = scaledByTwo(width, 0.5);
    DoubleDouble even = 1;       // He₂ₖ(m)
    DoubleDouble odd = middle;   // He₂ₖ₊₁(m)
    DoubleDouble factor = width; // 2·(width/2)^(2k+1) / (2k+1)!
    DoubleDouble sum = factor;
    for (double order = 2; order <= 20; order += 2) {
        even = middle * odd - (order - 1) * even;
        odd = middle * even - order * odd;
        factor = factor * (halfWidth * halfWidth / (order * (order + 1)));
        sum = sum + even * factor;
    }
    return density(middle) * sum;
}

/// ∫ of the density from a up to b.
DoubleDouble ascendingIntegral(double a, double b) {
    constexpr double kNarrow = 1;
    const DoubleDouble width = exactSum(b, -a);
    const DoubleDouble middle = scaledByTwo(exactSum(a, b), 0.5);
    if (width.high * std::max(1.0, std::fabs(middle.high)) < kNarrow) {
        return narrowIntegral(middle, width); // the differences below would cancel
    }
    if (a < 0 && b > 0) {
        return 1.0 - upperTail(b) - upperTail(-a);
    }
    return a >= 0 ? upperTail(a) - upperTail(b) : upperTail(-b) - upperTail(-a);
}

} // namespace

double normalDensity(double a) { return std::isnan(a) ? a : density(a).rounded(); }

double cumulativeNormal(double a) { return std::isnan(a) ? a : upperTail(-a).rounded(); }

double normalBetween(double a, double b) {
    if (std::isnan(a) || std::isnan(b)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (a == b) {
        return 0; // infinite ones too, which have no width
    }
    constexpr double kFarthest = 1e10; // and the sums above stay finite
    a = std::clamp(a, -kFarthest, kFarthest);
    b = std::clamp(b, -kFarthest, kFarthest);
    return a < b ? ascendingIntegral(a, b).rounded() : -ascendingIntegral(b, a).rounded();
}

double errorFunction(double a) { return std::erf(a); }

} // namespace velmora
