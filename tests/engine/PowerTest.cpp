#include "engine/Power.h"

#include "engine/IntegerPower.h"
#include "tests/engine/TableValue.h"
#include "tests/engine/UlpDistance.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr ComplexValue kI{0, 1};

struct Case {
    ComplexValue base;
    ComplexValue exponent;
    ComplexValue value;
};

TEST(IntegerPower, isExactForWholeParts) {
    struct Row {
        ComplexValue z;
        int n;
        ComplexValue value;
    };
    const Row rows[] = {
        {kI, 2, -1},
        {kI, -1, -kI},
        {{2, 0}, -2, 0.25},
        {0, 0, 1},
        {0, -1, kNaN},
        {{1, 1}, 8, 16},
        {{1, 1}, 100, -1125899906842624.0}, // (2i)^50 = −2^50
        {{2, 3}, 5, {122, -597}},
        {kI, std::numeric_limits<int>::min(), 1},
        {kI, std::numeric_limits<int>::max(), -kI},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ulpDistance(integerPower(row.z, row.n), row.value), 0) << row.z << "^" << row.n;
    }
}

TEST(Power, isExactWhereUsersCheck) {
    const Case cases[] = {
        {2, 10, 1024},
        {0, 0, 1},
        {0, -1, kInfinity},
        {0, 2, 0},
        {-2, 3, -8},
        {-2, -2, 0.25},
        {-8, 2147483649.0, -kInfinity}, // odd, and whole beyond 32 bits
        {-4, 0.5, {0, 2}},
        {-4, -0.5, {0, -0.5}},
        {-4, 1.5, {0, -8}},
        {-1, 1e15 + 0.5, kI},
        {-kInfinity, 0.5, {0, kInfinity}},
        {1, kNaN, kNaN},
        {kNaN, 0, kNaN},
        {kI, kNaN, kNaN},
        {kI, 2, -1},
        {kI, 0, 1},
        {{1, 1}, -2, {0, -0.5}},
        {0, {1, 1}, 0},
        {0, {-1, 1}, kNaN},
        {0, kI, kNaN},
        {1, {3, -5}, 1},
        {kInfinity, 2, kInfinity},
    };
    for (const Case& c : cases) {
        const ComplexValue value = tableValue(BivarType::Power, c.base, c.exponent);
        EXPECT_EQ(ulpDistance(value, c.value), 0) << c.base << "^" << c.exponent << " = " << value;
        EXPECT_FALSE(isReal(value) && std::signbit(value.imag())) << c.base << "^" << c.exponent;
    }
}

TEST(Power, ofNegativeNumbersTurnsByHalfTurns) {
    // (−1)^b goes round the unit circle once for every 2 in b.
    const double eighth = 0.70710678118654752440;
    const ComplexValue circle[] = {
        1, {eighth, eighth}, kI, {-eighth, eighth}, -1, {-eighth, -eighth}, -kI, {eighth, -eighth},
    };
    for (int eighths = -40; eighths <= 40; ++eighths) {
        const ComplexValue value = tableValue(BivarType::Power, -1, eighths / 4.0);
        EXPECT_LE(ulpDistance(value, circle[(eighths + 40) % 8]), 1) << eighths;
    }
}

} // namespace
} // namespace velmora
