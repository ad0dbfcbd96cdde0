#include "engine/numbers/Quotient.h"

#include "tests/engine/TokenLine.h"
#include "tests/engine/UlpDistance.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

TEST(Quotient, ofANumberAndItselfIsOneAtEverySize) {
    std::mt19937 random(20260101);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    std::uniform_int_distribution<int> exponent(-1070, 1020);
    for (int i = 0; i < 20000; ++i) {
        const ComplexValue z{std::ldexp(mantissa(random), exponent(random)),
                             std::ldexp(mantissa(random), exponent(random))};
        if (z != 0.0) {
            ASSERT_EQ(quotient(z, z), ComplexValue(1)) << z;
        }
    }
    EXPECT_EQ(shown("( . 1 + . 3 i ) / ( . 1 + . 3 i )"), "1");
    EXPECT_EQ(shown("fact( ( . 1 + . 3 i ) / ( . 1 + . 3 i ) )"), "1");
}

TEST(Quotient, isCorrectToTheLastDigitInBothParts) {
    struct Row {
        ComplexValue a;
        ComplexValue b;
        ComplexValue value;
    };
    const Row rows[] = {
        {{6, 15}, {2, 5}, 3}, // real
        {{5, -2}, {2, 5}, {0, -1}},
        {{1e300, 1e300}, {1e300, -1e300}, {0, 1}},
        {{0x1p-1060, 0x2p-1060}, {0x3p-1060, 0x4p-1060}, {0.44, 0.08}},
    };
    for (const Row& row : rows) {
        EXPECT_LE(ulpDistance(quotient(row.a, row.b), row.value), 1) << row.a;
    }
}

} // namespace
} // namespace velmora
