#include "engine/display/NumberDisplay.h"

#include "engine/environment/Environment.h"
#include "tests/engine/SpecialNumbers.h"

#include <gtest/gtest.h>

#include <tuple>

namespace velmora {
namespace {

TEST(NumberDisplay, writesNumbersInTheGivenStyle) {
    const NumberStyle full{.displayDigits = 10, .maxDigitsForDecimal = 10, .commas = true};
    const NumberStyle zeroes{.displayDigits = 4, .trailingZeroes = true, .maxDigitsForDecimal = 9};
    const NumberStyle whole{.displayDigits = 0, .maxDigitsForDecimal = 9, .commas = true};
    const NumberStyle exponents{.displayDigits = 2, .maxDigitsForDecimal = -400};
    const NumberStyle plain{.displayDigits = 0, .maxDigitsForDecimal = 400};
    // clang-format off
    const std::tuple<double, NumberStyle, const char*> cases[] = {
        {3, full, "3"}, {0.5, full, "0.5"}, {1234.5, full, "1234.5"}, // four digits stay together
        {12345.6, full, "12,345.6"}, {1234567, full, "1,234,567"}, {123456, full, "123,456"},
        {-123456.7, full, "-,123,456.7"}, // the sign counts as a digit
        {-1234.5, full, "-1,234.5"}, {-123.5, full, "-123.5"},
        {-1234567, full, "-1234567"}, // a negative whole number has none at all
        {0.0001, full, "1E-04"}, {0.001, full, "0.001"}, {0.000999, full, "9.99E-04"},
        {-0.000999, full, "-9.99E-04"}, {1e10, full, "1E+10"}, {9999999999, full, "9,999,999,999"},
        {-1e10, full, "-1E+10"}, {1.5e100, full, "1.5E+100"}, {5e-324, full, "4.9406564584E-324"},
        {2.5, zeroes, "2.5000"}, {0.0005, zeroes, "5.0000E-04"}, {100, zeroes, "100.0000"},
        {100, whole, "100"}, // zeroes before the point are never removed
        {0.4, whole, "0"}, {-0.4, whole, "-0"}, {12345.4, whole, "12,345"}, {1e9, whole, "1E+09"},
        {1200000000, whole, "1E+09"}, {100, exponents, "1E+02"}, {0.01, exponents, "1E-02"},
        {1e23, {.displayDigits = 1, .maxDigitsForDecimal = 23}, "1E+23"}, // typed 1E23 is the limit itself
        {std::nextafter(1e23, 0.0), {.maxDigitsForDecimal = 23}, "99999999999999974834176"},
        {1e22, plain, "10000000000000000000000"},
        {0.1, {.displayDigits = 20, .trailingZeroes = true}, "0.10000000000000000555"},
        {7, {.displayDigits = -3, .trailingZeroes = true}, "7"}, {0, zeroes, "0"}, {-0.0, zeroes, "0"},
        {kNaN, full, "undefined"}, {kInfinity, full, "Very large or infinite"},
        {-kInfinity, full, "Very negative or negative infinity"},
    };
    // clang-format on
    for (const auto& [number, style, text] : cases) {
        EXPECT_EQ(displayStringWithDouble(number, style), text) << number;
    }
}

TEST(NumberDisplay, writesThousandsOfDigits) {
    EXPECT_EQ(displayStringWithDouble(0.5, 5000, true, 9), "0.5" + std::string(4999, '0'));
    const double lowest = std::numeric_limits<double>::lowest();
    EXPECT_EQ(displayStringWithDouble(lowest, 3000, true, 400, false).size(), 1 + 309 + 1 + 3000U);
    EXPECT_EQ(displayStringWithDouble(1e-300, 2000, false, 9).substr(0, 19), "1.00000000000000002");
}

TEST(NumberDisplay, followsTheUsersSettings) {
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    EXPECT_EQ(displayStringWithDouble(123456.123456), "123456.12346"); // those of a first start
    environment.style = {
        .displayDigits = 2, .trailingZeroes = true, .maxDigitsForDecimal = 3, .commas = false};
    EXPECT_EQ(displayStringWithDouble(1000), "1.00E+03");
    EXPECT_EQ(displayStringWithDouble(12345.5, 2, false, 9), "12,345.5"); // commas unless told otherwise
}

TEST(NumberDisplay, showsOnlyRealValuesOfComplexOnes) {
    // clang-format off
    const std::tuple<ComplexValue, double, const char*> cases[] = { // with the rounding threshold
        {{2, 1e-13}, 1e-12, "2"}, {{2, 1e-13}, 0, "complex"}, {{2, 1e-12}, 1e-12, "complex"},
        {{2, -1}, 1e-12, "complex"}, {{1e-13, 0}, 1e-12, "0"}, {{1e-13, 0}, 0, "1E-13"},
        {{-5e-13, -5e-13}, 1e-12, "0"}, {{kNaN, 0}, 1e-12, "undefined"},
        {{kInfinity, 0}, 0, "Very large or infinite"},
    };
    // clang-format on
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    for (const auto& [z, threshold, text] : cases) {
        environment.roundingThreshold = threshold;
        EXPECT_EQ(displayStringWithComplex(z), text) << z;
    }
}

TEST(NumberDisplay, knowsDigitsOnly) {
    EXPECT_TRUE(isAllDigits("") && isAllDigits("0123456789"));
    for (const char* other : {"-1", "1.5", "1E5", " 1", "٣", "1a"}) {
        EXPECT_FALSE(isAllDigits(other)) << other;
    }
}

} // namespace
} // namespace velmora
