#include "engine/functions/NormalDistribution.h"

#include "engine/numbers/ExtendedPrecision.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

Extended density(Extended a) { return std::exp(-a * a / 2) / kExtendedSqrtTwoPi; }

/// The probability of a value beyond a on the upper side.
Extended upperTail(Extended a) { return std::erfc(a * kExtendedSqrtHalf) / 2; }

/// ∫ of the density over a narrow interval: its Taylor series about the middle m, integrated term by term.
/// The derivatives of even order are the density times the Hermite polynomials He₂ₖ(m).
Extended narrowIntegral(Extended middle, Extended width) {
    const Extended halfWidth = width / 2;
    Extended even = 1;       // He₂ₖ(m)
    Extended odd = middle;   // He₂ₖ₊₁(m)
    Extended factor = width; // 2·(width/2)^(2k+1) / (2k+1)!
    Extended sum = factor;
    for (int order = 2; order <= 20; order += 2) {
        even = middle * odd - (order - 1) * even;
        odd = middle * even - order * odd;
        factor *= halfWidth * halfWidth / (order * (order + 1));
        sum += even * factor;
    }
    return density(middle) * sum;
}

/// ∫ of the density from a up to b.
Extended ascendingIntegral(Extended a, Extended b) {
    constexpr Extended kNarrow = 1;
    if (a < 0 && b > 0) {
        return (std::erf(b * kExtendedSqrtHalf) + std::erf(-a * kExtendedSqrtHalf)) / 2; // both positive
    }
    const Extended width = b - a;
    if (width * std::max(Extended{1}, std::fabs(a + b) / 2) < kNarrow) {
        return narrowIntegral((a + b) / 2, width); // the difference below would cancel
    }
    return a >= 0 ? upperTail(a) - upperTail(b) : upperTail(-b) - upperTail(-a);
}

} // namespace

double normalDensity(double a) { return static_cast<double>(density(a)); }

double cumulativeNormal(double a) { return static_cast<double>(upperTail(-Extended{a})); }

double normalBetween(double a, double b) {
    if (std::isnan(a) || std::isnan(b)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (a == b) {
        return 0; // infinite ones too, which have no width
    }
    return static_cast<double>(a < b ? ascendingIntegral(a, b) : -ascendingIntegral(b, a));
}

double errorFunction(double a) { return std::erf(a); }

} // namespace velmora
