#include "engine/IntegerPower.h"
#include "tests/engine/ValueTable.h"

namespace velmora {
namespace {

using enum BivarType;

constexpr ComplexValue kI{0, 1};

TEST(IntegerPower, isExactForWholeParts) {
    struct Row {
        ComplexValue z;
        int n;
        ComplexValue value;
    };
    // clang-format off
    const Row rows[] = {
        {kI, 2, -1}, {kI, -1, -kI}, {{2, 0}, -2, 0.25}, {0, 0, 1}, {0, -1, kNaN}, {{1, 1}, 8, 16},
        {{1, 1}, 100, -1125899906842624.0}, // (2i)^50 = −2^50
        {{2, 3}, 5, {122, -597}}, {kI, std::numeric_limits<int>::min(), 1},
        {kI, std::numeric_limits<int>::max(), -kI},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(ulpDistance(integerPower(row.z, row.n), row.value), 0) << row.z << "^" << row.n;
    }
}

TEST(Power, isExactWhereUsersCheck) {
    // clang-format off
    const BivarCase cases[] = {
        {Power, 2, 10, 1024}, {Power, 0, 0, 1}, {Power, 0, -1, kInfinity}, {Power, 0, 2, 0},
        {Power, -2, 3, -8}, {Power, -2, -2, 0.25},
        {Power, -8, 2147483649.0, -kInfinity}, // odd, and whole beyond 32 bits
        {Power, -4, 0.5, {0, 2}}, {Power, -4, -0.5, {0, -0.5}}, {Power, -4, 1.5, {0, -8}},
        {Power, -1, 1e15 + 0.5, kI}, {Power, -kInfinity, 0.5, {0, kInfinity}}, {Power, 1, kNaN, kNaN},
        {Power, kNaN, 0, kNaN}, {Power, kI, kNaN, kNaN}, {Power, kI, 2, -1}, {Power, kI, 0, 1},
        {Power, {1, 1}, -2, {0, -0.5}}, {Power, 0, {1, 1}, 0}, {Power, 0, {-1, 1}, kNaN},
        {Power, 0, kI, kNaN}, {Power, 1, {3, -5}, 1}, {Power, kInfinity, 2, kInfinity},
    };
    // clang-format on
    expectValues(cases, 0);
}

TEST(Power, ofNegativeNumbersTurnsByHalfTurns) {
    // (−1)^b goes round the unit circle once for every 2 in b.
    const double eighth = 0.70710678118654752440;
    const ComplexValue circle[] = {
        1, {eighth, eighth}, kI, {-eighth, eighth}, -1, {-eighth, -eighth}, -kI, {eighth, -eighth},
    };
    for (int eighths = -40; eighths <= 40; ++eighths) {
        const ComplexValue value = BivarFunction(Power).valueWithComplex(-1, eighths / 4.0);
        EXPECT_LE(ulpDistance(value, circle[(eighths + 40) % 8]), 1) << eighths;
    }
}

} // namespace
} // namespace velmora
