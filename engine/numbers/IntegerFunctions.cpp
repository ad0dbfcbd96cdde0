#include "engine/numbers/IntegerFunctions.h"

#include "engine/numbers/DoubleDouble.h"
#include "engine/numbers/Modulo.h"
#include "engine/numbers/MyMath.h"

#include <algorithm>
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

bool areWhole(double n, double k) { return MyMath::isInteger(n) && MyMath::isInteger(k); }

/// Below this every whole number is a double.
constexpr double kExactWholeNumbers = 9007199254740992; // 2^53

/// C(n, k) of whole numbers, k at most n − k, exactly; 2^53 where it is that or more.
double wholeComb(double n, double k) {
    double ways = 1; // C(n − k + i, i) after i factors, which grows with i
    for (double i = 1; i <= k; i += 1) {
        const double common = gcd(ways, i);
        const double factor = (n - k + i) / (i / common); // whole, since ways/common has no divisor left of i
        ways = ways / common * factor;
        if (ways >= kExactWholeNumbers) {
            return kExactWholeNumbers;
        }
    }
    return ways;
}

/// How many factors a product of so many has before it is infinite.
std::int64_t factors(double count, double longest) {
    return count > 0 ? static_cast<std::int64_t>(std::min(count, longest)) : 0; // 0 for NaN
}

/// Γ(a + 1). The sum keeps all its digits, for Γ magnifies its rounding by up to a·ln a.
double gammaOfSuccessor(DoubleDouble a) {
    const DoubleDouble argument = a + 1.0;
    const double rough = std::tgamma(argument.high);
    const bool isSpecial = !std::isfinite(rough) || rough == 0 || argument.high == 0;
    return isSpecial ? rough : gammaFunction(argument).rounded();
}

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
    if (!areWhole(n, k) || std::round(n) < 0 || std::round(k) < 0) {
        return gammaOfSuccessor(n) / gammaOfSuccessor(exactSum(n, -k));
    }
    if (std::round(k) > std::round(n)) {
        return 0;
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
    if (!areWhole(n, k) || std::round(n) < 0 || std::round(k) < 0) {
        return gammaOfSuccessor(n) / (gammaOfSuccessor(k) * gammaOfSuccessor(exactSum(n, -k)));
    }
    if (std::round(k) > std::round(n)) {
        return 0;
    }
    const double chosen = std::min(std::round(k), std::round(n - k)); // C(n, k) = C(n, n − k) is shorter
    double a = std::round(n);
    double product = 1;
    // Multiplying and dividing in turn keeps the intermediate values small.
    for (double b = chosen; b >= 1 && std::isfinite(product) && product != 0; b -= 1) {
        product = product * a / b;
        a -= 1;
    }
    constexpr double kNearly = 1.001; // the product is rounded often
    const double ways = product < kNearly * kExactWholeNumbers ? wholeComb(std::round(n), chosen) : product;
    return ways < kExactWholeNumbers ? ways : product;
}

std::int64_t gcdSteps(double a, double b) {
    constexpr std::int64_t kOfFullMantissas = 100;
    return kOfFullMantissas + std::max(moduloSteps(a, b), moduloSteps(b, a));
}

std::int64_t permSteps(double /*n*/, double k) {
    constexpr double kLongest = 171; // 171! is infinite
    return factors(k, kLongest);
}

std::int64_t combSteps(double n, double k) {
    constexpr double kLongest = 515; // C(1030, 515) is infinite
    constexpr int kStepsOfFactor = 6;
    return kStepsOfFactor * factors(std::min(k, n - k), kLongest);
}

double factorial(double a) { return a == -1 ? kNaN : gammaOfSuccessor(a); }

} // namespace velmora
