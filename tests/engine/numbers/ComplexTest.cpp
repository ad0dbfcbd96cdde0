#include "engine/numbers/Complex.h"

#include "tests/engine/SpecialNumbers.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Complex, describesItsParts) {
    // clang-format off
    const std::pair<ComplexValue, const char*> cases[] = {
        {{0, 0}, "0"}, {{0, 1}, "i"}, {{0, -1}, "-i"}, {{2, 1}, "2+i"}, {{3, -1}, "3-i"}, {{2, -3}, "2-3i"},
        {{3, 2}, "3+2i"}, {{1e-12, 5}, "5i"}, {{0, -2}, "-2i"}, {{-0.5, 0}, "-0.5"},
        {{1234567, 0}, "1.23457e+06"}, {{100000, 1e-5}, "100000+1e-05i"},
        {{1, 1 + 5e-12}, "1+i"}, // within the tolerance of i
        {{1, 1.00001}, "1+1.00001i"}, {{kNaN, 0}, "nan"},
        {{1e-11, 1e-11}, "1e-11+1e-11i"}, // the tolerance itself is not negligible
        {{1.0 / 3, -1e300}, "0.333333-1e+300i"}, {{kInfinity, 2}, "inf+2i"},
        {{0, kNaN}, "nani"}, // no sign is added to what is not positive
    };
    // clang-format on
    for (const auto& [z, text] : cases) {
        EXPECT_EQ(Complex(z).description(), text);
    }
    EXPECT_EQ(Complex::descriptionWithParts(0.2, 0.3, 0.25), "0.3i");
}

TEST(Complex, roundsNegligiblePartsAway) {
    EXPECT_EQ(Complex({1e-12, 1e-12}).roundedDescription(), "0");
    EXPECT_EQ(Complex({1e-12, 2}).roundedDescription(), "2i");
    EXPECT_EQ(Complex({2, -9.9e-12}).roundedDescription(), "2");
}

TEST(Complex, takesThePrincipalCubeRoot) {
    const double halfRootOfThree = 0.86602540378443864676; // √3 / 2
    // clang-format off
    const std::pair<ComplexValue, ComplexValue> cases[] = {
        {{-8, 0}, {1, 2 * halfRootOfThree}},
        {{-8, -0.0}, {1, 2 * halfRootOfThree}}, // the same number, however it was computed
        {{27, 0}, {3, 0}}, {{0, 1}, {halfRootOfThree, 0.5}}, {{0, -8}, {2 * halfRootOfThree, -1}},
        {{0, 0}, {0, 0}},
    };
    // clang-format on
    for (const auto& [z, root] : cases) {
        EXPECT_LT(std::abs(Complex(z).cubeRoot().z() - root), 1e-15) << z;
        EXPECT_EQ(Complex(z).nthRoot(3).value().z(), Complex(z).cubeRoot().z());
        for (const int otherDegree : {-3, 0, 1, 2, 4}) {
            EXPECT_FALSE(Complex(z).nthRoot(otherDegree).has_value());
        }
    }
}

TEST(Complex, classifiesNumbers) {
    EXPECT_TRUE(isReal({5, -0.0}) && !isReal({5, 1e-300}));
    EXPECT_TRUE(isAlmostReal({5, -9.9e-12}) && !isAlmostReal({5, 1e-11}) && !isAlmostReal({5, kNaN}));
    EXPECT_TRUE(isNaN({0, kNaN}) && isNaN({kNaN, 0}) && !isNaN({kInfinity, 0}));
    EXPECT_TRUE(Complex({0, -0.0}).isZero() && !Complex({0, 5e-324}).isZero());
}

} // namespace
} // namespace velmora
