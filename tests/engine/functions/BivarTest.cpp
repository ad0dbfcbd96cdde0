#include "engine/numbers/IntegerPower.h"
#include "tests/engine/ValueTable.h"

namespace velmora {
namespace {

using enum BivarType;

constexpr ComplexValue kI{0, 1};

TEST(BivarReal, agreesWithTheMathematicalValue) {
    // Computed with arbitrary-precision arithmetic, 60 digits, for exactly these doubles.
    // clang-format off
    const BivarCase cases[] = {
        {NormalBetween, -1, 1, 0.6826894921370859}, {NormalBetween, 1, 1.0000000001, 2.4197074452779234e-11},
        {NormalBetween, 30, 31, 4.9067139271479176e-198}, {NormalBetween, -37, -36.5, 5.544725655819132e-292},
        {NormalBetween, 20, 20.001, 5.466104202324237e-91},
        {NormalBetween, -1e-09, 1e-09, 7.978845608028654e-10}, {NormalBetween, 0, 0.25, 0.09870632568292373},
        {NormalBetween, 8, kInfinity, 6.220960574271784e-16},
        {NthRoot, 7, 3.5, 1.1959802456254809}, {NthRoot, 100000.0, 1e-300, 0.9931160484209338},
        {NthRoot, 1000.5, 1e300, 1.9945736390543376}, {NthRoot, -7, 2e-300, 6.518363448688392e42},
        {NthRoot, -3, -2.0, -0.7937005259840998}, {NthRoot, 0.001, 1.5, 1.2338405969061631e176},
        {NthRoot, 11.9, -1e200, -1.5199110829529336e18},
        {LogarithmToBase, 10, 1.0000000000000002, 9.64327466553287e-17},
        {LogarithmToBase, 1.0000000000000002, 7.0, 8763600222181976.0},
        {LogarithmToBase, 0.3, 5e-324, 618.3196740379599}, {LogarithmToBase, 7, 1e300, 354.9883987364815},
        {Power, 1.0000000000000002, 1e18, 2.7086111089766717e96},
        {Power, 0.7, -700.0, 2.7000511404971474e108}, {Power, 2, 0.5, 1.4142135623730951},
    };
    // clang-format on
    expectValues(cases, 4);
}

TEST(BivarReal, isExactWhereUsersCheck) {
    // clang-format off
    const BivarCase cases[] = {
        {Divide, 5, 0, kNaN}, {Divide, 0, -0.0, kNaN}, {Divide, -6, 4, -1.5}, {Divide, 1, kInfinity, 0},
        {Add, kInfinity, 1, kInfinity}, {Subtract, 1, 3, -2}, {Multiply, 3, -2, -6},
        {LogarithmToBase, 2, 8, 3}, {LogarithmToBase, 10, 1000, 3}, {LogarithmToBase, 0.5, 8, -3},
        {LogarithmToBase, 3, 243, 5}, {LogarithmToBase, 1, 5, kNaN}, {LogarithmToBase, 2, 0, -kInfinity},
        {LogarithmToBase, 0, 2, 0},
        {Modulo, -7, 3, -1}, {Modulo, 7, -3, 1}, {Modulo, 5.5, 2, 1.5}, {Modulo, 5, 0, kNaN},
        {PositiveModulo, -7, 3, 2}, {PositiveModulo, -7, -3, 2}, {PositiveModulo, 7, -3, 1},
        {NthRoot, 3, -27, -3}, {NthRoot, 2, -4, kNaN}, {NthRoot, 2, 2.25, 1.5}, {NthRoot, 10, 1024, 2},
        {NthRoot, -3, -8, -0.5}, {NthRoot, 3.9, -27, -3}, // cut to 3
        {NthRoot, -0.5, -27, kNaN}, // cut to 0, which is even
        {NthRoot, 3, 0, kNaN}, {NthRoot, 0, 5, kNaN}, {NthRoot, kInfinity, -5, kNaN},
        {NormalBetween, 1, 1, 0}, {NormalBetween, -kInfinity, kInfinity, 1},
        {NormalBetween, kInfinity, 0, -0.5}, {Minimum, 2, -3, -3}, {Maximum, 2, -3, 2},
        {Minimum, kNaN, 1, kNaN}, {Minimum, 1, kNaN, kNaN},
        {Maximum, kNaN, 1, kNaN}, {Maximum, 1, kNaN, kNaN}, {GreaterOrEqual, 2, 2, 1}, {Greater, 2, 2, 0},
        {LessOrEqual, 2, 2, 1}, {Less, 1, 2, 1}, {Less, 2, 1, 0}, {GreaterOrEqual, kNaN, 1, 0},
        {Greater, 1, kNaN, 0}, {LessOrEqual, kNaN, kNaN, 0}, {Less, kNaN, 1, 0}, {BesselJ, 0, 1, kNaN},
        {BesselY, 0, 1, kNaN}, {Permutations, 5, 2, 20}, {Combinations, 10, 8, 45},
        {GreatestCommonDivisor, 12, 18, 6}, {LeastCommonMultiple, -4, 6, -12},
        {Power, 2, 10, 1024}, {Power, 0, 0, 1}, {Power, 0, -1, kInfinity}, {Power, 0, 2, 0},
        {Power, -2, 3, -8}, {Power, -2, -2, 0.25},
        {Power, -8, 2147483649.0, -kInfinity}, // odd, and whole beyond 32 bits
        {Power, -4, 0.5, {0, 2}}, {Power, -4, -0.5, {0, -0.5}}, {Power, -4, 1.5, {0, -8}},
        {Power, -1, 1e15 + 0.5, kI}, {Power, -kInfinity, 0.5, kInfinity}, {Power, -kInfinity, -0.5, 0}, {Power, 1, kNaN, kNaN},
        {Power, kNaN, 0, kNaN}, {Power, kI, kNaN, kNaN}, {Power, kI, 2, -1}, {Power, kI, 0, 1},
        {Power, {1, 1}, -2, {0, -0.5}}, {Power, 0, {1, 1}, 0}, {Power, 0, {-1, 1}, kNaN},
        {Power, 0, kI, kNaN}, {Power, 1, {3, -5}, 1}, {Power, kInfinity, 2, kInfinity},
    };
    // clang-format on
    expectValues(cases, 0);
}

TEST(BivarReal, reversesTheNormalIntervalWithItsSign) {
    const auto between = bivarRow(NormalBetween).real;
    for (const double a : {-30.0, -1.0, 0.0, 0.3, 5.0}) {
        for (const double b : {-29.99, -0.5, 0.1, 5.5, 20.0}) {
            EXPECT_EQ(between(a, b), -between(b, a)) << a << ", " << b;
            EXPECT_LE(ulpDistance(between(a, b), between(-b, -a)), 1) << a << ", " << b;
        }
    }
}

TEST(BivarComplex, takesPrincipalValues) {
    // Computed with arbitrary-precision arithmetic, 60 digits, for exactly these doubles.
    // clang-format off
    const BivarCase cases[] = {
        {Power, {-2.0, 0.0}, {0.75, 0.0}, {-1.189207115002721, 1.189207115002721}},
        {Power, {2.0, 0.0}, {1.0, 1.0}, {1.5384778027279442, 1.2779225526272695}},
        {Power, {0.0, 1.0}, {0.5, 0.0}, {0.7071067811865476, 0.7071067811865476}},
        {Power, {-3.0, 0.0}, {2.0, -1.0}, {94.72623566447587, -185.4771262833887}},
        {Power, {1.0, 1.0}, {1.0, 1.0}, {0.2739572538301211, 0.5837007587586146}},
        {Power, {1e-300, 0.0}, {-1.0, 3.0}, {4.315665496702376e299, 9.020811012352083e299}},
        {NthRoot, {3.0, 0.0}, {0.0, 8.0}, {1.7320508075688772, 1.0}},
        {NthRoot, {2.0, 0.0}, {-3.0, 4.0}, {1.0, 2.0}},
        {NthRoot, {0.0, 1.0}, {5.0, 0.0}, {-0.038631969933935424, -0.9992535068234805}},
        {NthRoot, {2.5, 1.0}, {-7.0, 0.0}, {2.0696021668133318, 2.195494232180461}},
        {LogarithmToBase, {2.0, 0.0}, {-8.0, 0.0}, {3.0, 4.532360141827194}},
        {LogarithmToBase, {-2.0, 0.0}, {8.0, 0.0}, {0.1392609706362244, -0.6311808726237906}},
        {LogarithmToBase, {1.0, 1.0}, {3.0, -2.0}, {-0.023534829576277345, -1.6432827185776422}},
        {Divide, {1.0, 2.0}, {3.0, -4.0}, {-0.2, 0.4}}, {Divide, {1e300, 1e300}, {1e300, -1e300}, {0.0, 1.0}},
        {Divide, {5.0, 0.0}, {0.0, 2.0}, {0.0, -2.5}}, {Divide, {3.0, 4.0}, {2.0, 0.0}, {1.5, 2.0}},
        {Multiply, {1, 2}, {3, -4}, {11, 2}}, {Multiply, {0, 1}, {0, 1}, -1}, {Multiply, {0, 1}, {0, -1}, 1},
        {Add, {1, 2}, {3, -4}, {4, -2}}, {Subtract, {1, 2}, {1, 2}, 0},
        {Divide, {1, 2}, 0, kNaN}, {Divide, {3, 4}, {2, -0.0}, {1.5, 2}},
        {NthRoot, 2, {0, 2}, {1, 1}}, {NthRoot, 0, {0, 2}, kNaN}, {NthRoot, {0, 1}, 0, kNaN},
        {LogarithmToBase, 1, {0, 1}, kNaN},
    };
    // clang-format on
    expectValues(cases, 3);
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

TEST(BivarTokens, selectTheirType) {
    struct Row {
        const char* token;
        int type;
        const char* name;
    };
    // clang-format off
    const Row rows[] = {
        {"+", 0, "+"}, {"-", 1, "-"}, {"*", 2, "*"}, {"/", 3, "/"}, {"^", 4, "^"}, {"logbase(", 5, "logbase"},
        {"perm(", 6, "perm"}, {"comb(", 7, "comb"}, {"mod(", 8, "mod"}, {"modPos(", 9, "modPos"},
        {"nroot(", 10, "nroot"}, {"normVarBetween(", 11, "unknown"}, {"lcm(", 12, "lcm"}, {"gcd(", 13, "gcd"},
        {"min(", 14, "min"}, {"max(", 15, "max"}, {"BesselJ_n(", 16, "unknown"},
        {"BesselY_n(", 17, "unknown"}, {"≥", 22, ""}, // comparisons are not parsed from text
        {"<", 22, ""}, {"", 22, ""}, {"sin(", 22, ""}, {"mod", 22, ""}, {"++", 22, ""},
    };
    // clang-format on
    for (const Row& row : rows) {
        const BivarType type = bivarTypeWithToken(row.token);
        EXPECT_EQ(static_cast<int>(type), row.type) << row.token;
        EXPECT_EQ(bivarRow(type).name, row.name) << row.token;
    }
}

} // namespace
} // namespace velmora
