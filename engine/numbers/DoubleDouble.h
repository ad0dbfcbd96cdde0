#pragma once

#include <cmath>

namespace velmora {

/// A number as the unevaluated sum of two doubles, the second within half a unit of the last place of the
/// first: about 32 decimal digits over the range of double, in nothing but double arithmetic. Where a
/// function magnifies the rounding of an intermediate step (an exponent, a quotient of logarithms, a tail),
/// that step is carried in it, so that what remains after rounding to double is the rounding to double. The
/// machine's own wider types will not do: some machines have none, others compute them in software.
///
/// Sources: Dekker, A floating-point technique for extending the available precision (1971); Knuth, The Art
/// of Computer Programming, vol. 2, 4.2.2. Infinities and NaN are in `high` and make `low` meaningless, so
/// special values are dealt with before.
struct DoubleDouble {
    constexpr DoubleDouble() = default;
    constexpr DoubleDouble(double value) : high(value) {} // every double is one
    constexpr DoubleDouble(double first, double second) : high(first), low(second) {}

    double rounded() const { return high + low; }

    double high = 0;
    double low = 0;
};

/// The sum of two doubles, exactly.
inline DoubleDouble exactSum(double a, double b) {
    const double sum = a + b;
    const double ofB = sum - a;
    return {sum, (a - (sum - ofB)) + (b - ofB)};
}

/// The same where |a| ≥ |b| or a is 0.
inline DoubleDouble exactSumOfOrdered(double a, double b) {
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

/// The product of two doubles, exactly but for underflow.
inline DoubleDouble exactProduct(double a, double b) {
    const double product = a * b;
#ifdef FP_FAST_FMA
    return {product, std::fma(a, b, -product)};
#else
    // Veltkamp's splitting into halves of 26 bits, whose products are exact. Factors near the largest double
    // would overflow there and are not used here.
    constexpr double kSplitter = 134217729; // 2^27 + 1
    const double aScaled = a * kSplitter;
    const double bScaled = b * kSplitter;
    const double aHigh = aScaled - (aScaled - a);
    const double bHigh = bScaled - (bScaled - b);
    const double aLow = a - aHigh;
    const double bLow = b - bHigh;
    return {product, ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow};
#endif
}

inline DoubleDouble operator-(DoubleDouble a) { return {-a.high, -a.low}; }

inline DoubleDouble operator+(DoubleDouble a, DoubleDouble b) {
    const DoubleDouble high = exactSum(a.high, b.high);
    const DoubleDouble low = exactSum(a.low, b.low);
    const DoubleDouble sum = exactSumOfOrdered(high.high, high.low + low.high);
    return exactSumOfOrdered(sum.high, sum.low + low.low);
}

inline DoubleDouble operator-(DoubleDouble a, DoubleDouble b) { return a + -b; }

inline DoubleDouble operator*(DoubleDouble a, DoubleDouble b) {
    const DoubleDouble product = exactProduct(a.high, b.high);
    return exactSumOfOrdered(product.high, product.low + (a.high * b.low + a.low * b.high));
}

/// The divisor must not be 0.
inline DoubleDouble operator/(DoubleDouble a, DoubleDouble b) {
    const double first = a.high / b.high;
    const DoubleDouble rest = a - b * first;
    const double second = rest.high / b.high;
    const DoubleDouble last = rest - b * second;
    return exactSumOfOrdered(first, second) + last.high / b.high;
}

/// The divisor must not be 0.
inline DoubleDouble operator/(DoubleDouble a, double b) {
    const double first = a.high / b;
    const DoubleDouble product = exactProduct(first, b);
    return exactSumOfOrdered(first, (a.high - product.high - product.low + a.low) / b);
}

/// Times 2 or 1/2.
inline DoubleDouble scaledByTwo(DoubleDouble a, double factor) { return {a.high * factor, a.low * factor}; }

/// Times a power of two.
inline DoubleDouble scaled(DoubleDouble a, int exponent) {
    return {std::ldexp(a.high, exponent), std::ldexp(a.low, exponent)};
}

inline constexpr DoubleDouble kDoubleDoublePi{0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53};
inline constexpr DoubleDouble kDoubleDoubleLn2{0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

// Elementary functions to some 30 digits, of finite arguments. Special values are the caller's.

DoubleDouble exponential(DoubleDouble a);
/// Of a positive number.
DoubleDouble naturalLogarithm(DoubleDouble a);

struct SineAndCosine {
    DoubleDouble sine;
    DoubleDouble cosine;
};
/// Of an angle of a few turns at most.
SineAndCosine sineAndCosine(DoubleDouble angle);
/// The angle of the direction (x, y), within [−π, π]; not of (0, 0).
DoubleDouble angleOf(double y, double x);

/// The error function's complement 1 − erf a for a ≥ 0.
DoubleDouble complementaryErrorFunction(DoubleDouble a);
/// Γ(a) for a within the range where it is finite and not 0, but no pole.
DoubleDouble gammaFunction(DoubleDouble a);

} // namespace velmora
