#include "engine/display/Fraction.h"

#include "engine/environment/Environment.h"
#include "tests/engine/SpecialNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <numeric>
#include <tuple>

namespace velmora {
namespace {

TEST(Fraction, writesProperAndMixedNumbers) {
    // clang-format off
    const std::tuple<double, const char*, const char*> cases[] = { // proper, mixed
        {0.333333, "(1/3)", "(1/3)"}, {-0.75, "(-3/4)", "(-3/4)"}, {2.75, "(11/4)", "2+3/4"},
        {-2.75, "(-11/4)", "-(2+3/4)"}, {1.5, "(3/2)", "1+1/2"}, {3, "3", "3"}, {-4, "-4", "-4"},
        {0, "0", "0"}, {2.999999, "3", "3"},
        {0.0101010101, "(1/99)", "(1/99)"}, // within 1e-8 of a denominator of two digits
        {0.010101, "0.0101", "0.0101"}, // not within it
        {0.00990099009901, "(1/101)", "(1/101)"}, // within 1e-12 beyond
        {0.009901, "0.0099", "0.0099"}, {0.009900990104, "0.0099", "0.0099"},
        {0.0001, "(1/10000)", "(1/10000)"}, // the largest denominator
        {1.0 / 10007, "9.993E-05", "9.993E-05"}, {1e-6, "1E-06", "1E-06"}, // never becomes 0
        {std::numbers::pi, "3.14159", "3.14159"}, {0.1234567, "0.12346", "0.12346"},
        {100000000.5, "(200000001/2)", "100000000+1/2"},
        {99999999.0 + 1.0 / 7, "(699999994/7)", "99999999+1/7"}, {100000001.5, "100000001.5", "100000001.5"},
        {1e300, "1E+300", "1E+300"}, {kNaN, "undefined", "undefined"},
        {kInfinity, "Very large or infinite", "Very large or infinite"},
    };
    // clang-format on
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    for (const auto& [x, proper, mixed] : cases) {
        EXPECT_EQ(fractionText(x, false), proper) << x;
        EXPECT_EQ(fractionText(x, true), mixed) << x;
    }
}

TEST(Fraction, findsEverySmallDenominatorInSixTypedDigits) {
    for (int denominator = 1; denominator <= 9; ++denominator) {
        for (int numerator = -300; numerator <= 300; ++numerator) {
            const double typed = std::round(1e6 * numerator / denominator) / 1e6;
            EXPECT_EQ(fractionValue(typed), static_cast<double>(numerator) / denominator) << typed;
        }
    }
}

TEST(Fraction, recoversQuotientsInLowestTerms) {
    for (int denominator = 1; denominator <= 10000; denominator += 37) {
        for (const int numerator : {1, 2, 355, 9999, 123457}) {
            const double quotient = static_cast<double>(numerator) / denominator;
            const int common = std::gcd(numerator, denominator);
            const auto found = fractionDictionary(quotient);
            ASSERT_TRUE(found.has_value()) << numerator << "/" << denominator;
            // A smaller denominator wins only where it is as near as its size allows.
            const bool isSmaller = found->denominator < denominator / common;
            EXPECT_LT(std::fabs(found->value() - quotient), isSmaller ? 1e-5 : 1e-15 * (1 + quotient));
            EXPECT_TRUE(isSmaller || found->numerator == numerator / common)
                << numerator << "/" << denominator;
        }
    }
    EXPECT_EQ(fractionValue(std::numbers::sqrt2), std::numbers::sqrt2);
}

} // namespace
} // namespace velmora
