#include "engine/numbers/IntegerFunctions.h"

#include "engine/numbers/ExtendedPrecision.h"
#include "engine/numbers/MyMath.h"

#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isNearInteger(double x) {
    constexpr double kTolerance = 1e-8;
    return std::fabs(static_cast<float>(x - std::round(x))) <= kTolerance;
}

/// Γ(a + 1). The sum is formed in extended precision, for Γ magnifies its rounding by up to a·ln a.
double gammaOfSuccessor(Extended a) { return static_cast<double>(std::tgamma(a + 1.0L)); }

} // namespace

double gcd(double a, double b) {
    if (!isNearInteger(a) || !isNearInteger(b)) {
        return kNaN;
    }
    double x = std::fabs(std::round(b));
    double y = std::fabs(std::round(a));
    while (y != 0) {
        x = std::fmod(x, y); // exact for every pair of doubles
        std::swap(x, y);
    }
    return x;
}

double lcm(double a, double b) {
    if (!isNearInteger(a) || !isNearInteger(b)) {
        return kNaN;
    }
    if (std::round(a) == 0 || std::round(b) == 0) {
        return 0;
    }
    return a / gcd(a, b) * b;
}

double perm(double n, double k) {
    if (!MyMath::isInteger(n) || !MyMath::isInteger(k) || std::round(n) < std::round(k) ||
        std::round(k) < 0) {
        return gammaOfSuccessor(n) / gammaOfSuccessor(Extended{n} - k);
    }
    double a = std::round(n);
    double product = 1;
    // An infinite product stays infinite, and stopping there bounds the loop for every k.
    for (double b = std::round(k); b >= 1 && std::isfinite(product) && product != 0; b -= 1) {
        product *= a;
        a -= 1;
    }
    return product;
}

double comb(double n, double k) {
    if (!MyMath::isInteger(n) || !MyMath::isInteger(k) || std::round(n) < std::round(k) ||
        std::round(k) < 0) {
        return gammaOfSuccessor(n) / (gammaOfSuccessor(k) * gammaOfSuccessor(Extended{n} - k));
    }
    double a = std::round(n);
    double b = std::round(k);
    if (std::round(n - k) < b) {
        b = std::round(n - k); // C(n, k) = C(n, n − k) keeps the loop short
    }
    double product = 1;
    // Multiplying and dividing in turn keeps the intermediate values small.
    for (; b >= 1 && std::isfinite(product) && product != 0; b -= 1) {
        product = product * a / b;
        a -= 1;
    }
    return product;
}

double factorial(double a) { return static_cast<double>(gammaOfSuccessor(a)); }

} // namespace velmora
