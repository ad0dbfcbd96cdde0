#include "engine/numbers/DoubleDouble.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <numbers>

namespace velmora {

namespace {

constexpr DoubleDouble kHalfPi{kDoubleDoublePi.high / 2, kDoubleDoublePi.low / 2};
constexpr DoubleDouble kTwoOverRootPi{0x1.20dd750429b6dp+0, 0x1.1ae3a914fed80p-56};
constexpr DoubleDouble kHalfLn2Pi{0x1.d67f1c864beb5p-1, -0x1.65b5a1b7ff5dfp-55};

/// Horner's rule, the constant term first.
template <std::size_t count> double polynomial(const std::array<double, count>& coefficients, double x) {
    double value = 0;
    for (std::size_t i = count; i-- > 0;) {
        value = value * x + coefficients[i];
    }
    return value;
}

/// 2^(i/32)
// clang-format off
constexpr std::array<DoubleDouble, 32> kRootsOfTwo{{
    {0x1.0000000000000p+0, 0x0.0p+0},
    {0x1.059b0d3158574p+0, 0x1.d73e2a475b465p-55},
    {0x1.0b5586cf9890fp+0, 0x1.8a62e4adc610bp-54},
    {0x1.11301d0125b51p+0, -0x1.6c51039449b3ap-54},
    {0x1.172b83c7d517bp+0, -0x1.19041b9d78a76p-55},
    {0x1.1d4873168b9aap+0, 0x1.e016e00a2643cp-54},
    {0x1.2387a6e756238p+0, 0x1.9b07eb6c70573p-54},
    {0x1.29e9df51fdee1p+0, 0x1.612e8afad1255p-55},
    {0x1.306fe0a31b715p+0, 0x1.6f46ad23182e4p-55},
    {0x1.371a7373aa9cbp+0, -0x1.63aeabf42eae2p-54},
    {0x1.3dea64c123422p+0, 0x1.ada0911f09ebcp-55},
    {0x1.44e086061892dp+0, 0x1.89b7a04ef80d0p-59},
    {0x1.4bfdad5362a27p+0, 0x1.d4397afec42e2p-56},
    {0x1.5342b569d4f82p+0, -0x1.07abe1db13cadp-55},
    {0x1.5ab07dd485429p+0, 0x1.6324c054647adp-54},
    {0x1.6247eb03a5585p+0, -0x1.383c17e40b497p-54},
    {0x1.6a09e667f3bcdp+0, -0x1.bdd3413b26456p-54},
    {0x1.71f75e8ec5f74p+0, -0x1.16e4786887a99p-55},
    {0x1.7a11473eb0187p+0, -0x1.41577ee04992fp-55},
    {0x1.82589994cce13p+0, -0x1.d4c1dd41532d8p-54},
    {0x1.8ace5422aa0dbp+0, 0x1.6e9f156864b27p-54},
    {0x1.93737b0cdc5e5p+0, -0x1.75fc781b57ebcp-57},
    {0x1.9c49182a3f090p+0, 0x1.c7c46b071f2bep-56},
    {0x1.a5503b23e255dp+0, -0x1.d2f6edb8d41e1p-54},
    {0x1.ae89f995ad3adp+0, 0x1.7a1cd345dcc81p-54},
    {0x1.b7f76f2fb5e47p+0, -0x1.5584f7e54ac3bp-56},
    {0x1.c199bdd85529cp+0, 0x1.11065895048ddp-55},
    {0x1.cb720dcef9069p+0, 0x1.503cbd1e949dbp-56},
    {0x1.d5818dcfba487p+0, 0x1.2ed02d75b3707p-55},
    {0x1.dfc97337b9b5fp+0, -0x1.1a5cd4f184b5cp-54},
    {0x1.ea4afa2a490dap+0, -0x1.e9c23179c2893p-54},
    {0x1.f50765b6e4540p+0, 0x1.9d3e12dd8a18bp-54}
}};
// clang-format on

/// e^a − 1 as (factor·(1 + rest))·2^exponent − 1, where factor is one of the above and rest is small.
struct ExponentialParts {
    explicit ExponentialParts(DoubleDouble a) {
        constexpr auto kParts = static_cast<int>(kRootsOfTwo.size());
        constexpr DoubleDouble kStep{kDoubleDoubleLn2.high / kParts, kDoubleDoubleLn2.low / kParts};
        const double steps = std::round(a.high / kStep.high);
        const int index = static_cast<int>(steps);
        const int part = (index % kParts + kParts) % kParts;
        exponent = (index - part) / kParts;
        factor = kRootsOfTwo[static_cast<std::size_t>(part)];
        // The Taylor series, whose first terms alone need the second double.
        constexpr DoubleDouble kSixth{0x1.5555555555555p-3, 0x1.5555555555555p-57};
        constexpr std::array kTail{1.0 / 24, 1.0 / 120, 1.0 / 720, 1.0 / 5040, 1.0 / 40320};
        const DoubleDouble r = a - kStep * steps;
        const DoubleDouble square = r * r;
        const double tail = square.high * square.high * polynomial(kTail, r.high);
        rest = r + (scaledByTwo(square, 0.5) + (square * r * kSixth + tail));
    }

    DoubleDouble factor;
    DoubleDouble rest;
    int exponent;
};

/// e^a − 1 for |a| up to ln 2, with all its digits near 0.
DoubleDouble exponentialMinusOne(DoubleDouble a) {
    const ExponentialParts parts(a);
    if (parts.exponent == 0 && parts.factor.high == 1) {
        return parts.rest;
    }
    const DoubleDouble value = parts.factor + parts.factor * parts.rest;
    return scaled(value, parts.exponent) - 1.0;
}

} // namespace

DoubleDouble exponential(DoubleDouble a) {
    constexpr double kOverflow = 709.8;
    constexpr double kUnderflow = -745.2;
    if (a.high > kOverflow || a.high < kUnderflow) {
        return a.high > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    }
    const ExponentialParts parts(a);
    return scaled(parts.factor + parts.factor * parts.rest, parts.exponent);
}

DoubleDouble naturalLogarithm(DoubleDouble a) {
    const int exponent = std::ilogb(a.high / std::numbers::sqrt2) + 1; // so what is left lies about 1
    const DoubleDouble m = scaled(a, -exponent);
    // One step of Newton's method, in a form that keeps its digits at 1: y + m·e^−y − 1.
    const double y = std::log(m.high);
    const DoubleDouble correction = (m - 1.0) + m * exponentialMinusOne(-y);
    return kDoubleDoubleLn2 * static_cast<double>(exponent) + (correction + y);
}

SineAndCosine sineAndCosine(DoubleDouble angle) {
    // 1/3!, 1/5!, 1/7! and 1/4!, 1/6! with their signs; of the higher terms of the series double is enough.
    constexpr std::array<DoubleDouble, 3> kSine{{{-0x1.5555555555555p-3, -0x1.5555555555555p-57},
                                                 {0x1.1111111111111p-7, 0x1.1111111111111p-63},
                                                 {-0x1.a01a01a01a01ap-13, -0x1.a01a01a01a01ap-73}}};
    constexpr std::array<DoubleDouble, 2> kCosine{
        {{0x1.5555555555555p-5, 0x1.5555555555555p-59}, {-0x1.6c16c16c16c17p-10, 0x1.f49f49f49f49fp-65}}};
    constexpr std::array kSineTail{1.0 / 362880,         -1.0 / 39916800,       1.0 / 6227020800,
                                   -1.0 / 1307674368000, 1.0 / 355687428096000, -1.0 / 121645100408832000};
    constexpr std::array kCosineTail{1.0 / 40320,        -1.0 / 3628800,       1.0 / 479001600,
                                     -1.0 / 87178291200, 1.0 / 20922789888000, -1.0 / 6402373705728000};
    const double quarter = std::round(angle.high / kHalfPi.high);
    const DoubleDouble r = angle - kHalfPi * quarter;
    const DoubleDouble square = r * r;
    const DoubleDouble sine =
        r +
        r * square *
            (kSine[0] +
             square * (kSine[1] + square * (kSine[2] + square.high * polynomial(kSineTail, square.high))));
    const DoubleDouble cosine =
        DoubleDouble(1) - scaledByTwo(square, 0.5) +
        square * square *
            (kCosine[0] + square * (kCosine[1] + square.high * polynomial(kCosineTail, square.high)));
    switch ((static_cast<int>(quarter) % 4 + 4) % 4) {
    case 1:
        return {cosine, -sine};
    case 2:
        return {-sine, -cosine};
    case 3:
        return {-cosine, sine};
    default:
        return {sine, cosine};
    }
}

DoubleDouble angleOf(double y, double x) {
    const int exponent = std::ilogb(std::max(std::fabs(x), std::fabs(y)));
    const double sine = std::ldexp(y, -exponent);
    const double cosine = std::ldexp(x, -exponent);
    // The direction turned back by the angle that the library gives is all but the x axis; what is left of it
    // is the error of that angle.
    const double angle = std::atan2(y, x);
    const SineAndCosine turn = sineAndCosine(angle);
    return (turn.cosine * sine - turn.sine * cosine) / (turn.cosine * cosine + turn.sine * sine) + angle;
}

DoubleDouble complementaryErrorFunction(DoubleDouble a) {
    constexpr double kUnderflow = 27.3;
    constexpr double kSeriesUpTo = 3;
    if (a.high > kUnderflow) {
        return 0.0;
    }
    const DoubleDouble square = a * a;
    const DoubleDouble factor = kTwoOverRootPi * exponential(-square);
    if (a.high < kSeriesUpTo) {              // Abramowitz and Stegun 7.1.6
        constexpr double kPrecision = 1e-27; // of which the difference below leaves 22 digits
        DoubleDouble term = a;
        DoubleDouble sum = a;
        for (double odd = 3; term.high > sum.high * kPrecision; odd += 2) {
            term = term * scaledByTwo(square, 2) / odd;
            sum = sum + term;
        }
        return DoubleDouble(1) - factor * sum;
    }
    // The continued fraction 7.1.14 from its end. What is lost at its far levels hardly counts.
    constexpr int kPreciseLevels = 14;
    const int levels = kPreciseLevels + static_cast<int>(500 / square.high);
    double rough = a.high;
    for (int level = levels; level > kPreciseLevels; --level) {
        rough = a.high + level / (2 * rough);
    }
    DoubleDouble fraction = rough;
    for (int level = kPreciseLevels; level > 0; --level) {
        fraction = a + DoubleDouble(level) / scaledByTwo(fraction, 2);
    }
    return scaledByTwo(factor, 0.5) / fraction;
}

namespace {

/// Γ as root² / divisor, for both halves of which there is room where Γ itself overflows.
struct GammaParts {
    DoubleDouble root;
    DoubleDouble divisor;
};

/// Of a number from 1/2 on: Stirling's series (Abramowitz and Stegun 6.1.40), reached by 6.1.15 from below.
GammaParts gammaParts(DoubleDouble a) {
    constexpr double kSeriesFrom = 20;
    constexpr DoubleDouble kTwelfth{0x1.5555555555555p-4, 0x1.5555555555555p-58};
    constexpr std::array kTail{-1.0 / 360,         1.0 / 1260,    -1.0 / 1680,      1.0 / 1188,
                               -691.0 / 360360,    1.0 / 156,     -3617.0 / 122400, 43867.0 / 244188,
                               -174611.0 / 125400, 77683.0 / 5796};
    DoubleDouble divisor = 1;
    while (a.high < kSeriesFrom) {
        divisor = divisor * a;
        a = a + 1.0;
    }
    const DoubleDouble reciprocal = DoubleDouble(1) / a;
    const double square = reciprocal.high * reciprocal.high;
    const DoubleDouble series = reciprocal * (kTwelfth + square * polynomial(kTail, square));
    const DoubleDouble logarithm = (a - 0.5) * naturalLogarithm(a) - a + (kHalfLn2Pi + series);
    return {exponential(scaledByTwo(logarithm, 0.5)), divisor};
}

} // namespace

DoubleDouble gammaFunction(DoubleDouble a) {
    if (a.high >= 0.5) {
        const GammaParts parts = gammaParts(a);
        return parts.root / parts.divisor * parts.root;
    }
    // The reflection 6.1.17.
    const double nearest = std::round(a.high);
    const DoubleDouble sine = sineAndCosine(kDoubleDoublePi * (a - nearest)).sine;
    const GammaParts parts = gammaParts(DoubleDouble(1) - a);
    const DoubleDouble value = kDoubleDoublePi * parts.divisor / (sine * parts.root) / parts.root;
    return std::fmod(nearest, 2) == 0 ? value : -value;
}

} // namespace velmora
