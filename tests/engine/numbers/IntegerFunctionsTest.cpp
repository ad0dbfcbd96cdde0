#include "engine/numbers/IntegerFunctions.h"

#include "engine/numbers/MyMath.h"
#include "tests/engine/SpecialNumbers.h"
#include "tests/engine/UlpDistance.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(MyMath, tellsWholeNumbersApart) {
    for (const double whole : {0.0, -3.0, 9.99999e-11, 2.00000000001, -2.00000000001, 2147483648.0, 1e300}) {
        EXPECT_TRUE(MyMath::isInteger(whole)) << whole;
    }
    for (const double other : {0.5, 9.9999999e-11 /* 1e-10 in single precision */, 2.001, 2.0000000002,
                               2147483648.5, kNaN, kInfinity, -kInfinity}) {
        EXPECT_FALSE(MyMath::isInteger(other)) << other;
    }
}

struct Case {
    double (*function)(double, double);
    double a;
    double b;
    double value;
};

TEST(IntegerFunctions, areExactForWholeNumbers) {
    // clang-format off
    const Case cases[] = {
        {gcd, 12, 18, 6}, {gcd, -12, 18, 6}, {gcd, 0, 5, 5}, {gcd, -5, 0, 5}, {gcd, 0, 0, 0},
        {gcd, 12.5, 5, kNaN}, {gcd, 5, 12.5, kNaN}, {gcd, 12.000000001, 18, 6}, // rounding within 1e-8
        {gcd, 12.0000001, 18, kNaN},
        {gcd, 9007199254740991, 6361, 6361}, // 2^53 − 1 = 6361 · 69431 · 20394401
        {gcd, 1e22, 1024, 1024}, // 2^22 divides 10^22
        {gcd, kInfinity, 6, kNaN}, {gcd, kNaN, 6, kNaN}, {lcm, 4, 6, 12},
        {lcm, -4, 6, -12}, // the sign is that of the product
        {lcm, -4, -6, 12}, {lcm, 0, 6, 0}, {lcm, 6, 0, 0}, {lcm, 4.2, 6, kNaN},
        {lcm, 0, 4.2, kNaN}, // undefined before it is 0
        {lcm, 4294967296.0, 6442450944.0, 12884901888.0}, // 2^32 and 3·2^31: 3·2^32
        {perm, 5, 2, 20}, {perm, 5, 0, 1}, {perm, 5, 5, 120}, {perm, 2, 3, 0}, {perm, 3, 5, 0},
        {perm, 200, 300, 0}, // though 200! is infinite
        {perm, 1e9, 5e8, kInfinity}, // and that at once
        {perm, 1e300, 1e300, kInfinity},
        {perm, 4294967297.0, 1, 4294967297.0}, // whole numbers beyond 32 bits
        {comb, 10, 8, 45}, {comb, 5, 0, 1}, {comb, 52, 5, 2598960}, // poker hands
        // Pascal's triangle, added up with arbitrary-precision integers
        {comb, 8, 3, 56}, {comb, 50, 25, 126410606437752}, {comb, 56, 28, 7648690600760440},
        {comb, 57, 24, 7522327487513475}, {comb, 134217728, 2, 9007199187632128}, {comb, 67, 17, 3371363686069236},
        {comb, 8, 9, 0}, {comb, 0, 4, 0}, {comb, 0, 0, 1},
        {comb, 1e9, 5e8, kInfinity}, {comb, 1e9, 1e9 - 1, 1e9}, // the short side of the symmetry
        {comb, kNaN, 1, kNaN},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_LE(ulpDistance(c.function(c.a, c.b), c.value), 0) << c.a << ", " << c.b;
    }
}

TEST(IntegerFunctions, areExtendedByTheGammaFunction) {
    // clang-format off
    const Case cases[] = {
        // by the gamma function: computed with arbitrary-precision arithmetic, 60 digits
        {perm, 4.5, 2, 15.75}, {perm, 6.25, -1.5, 0.048754109437229694},
        {perm, 100.25, 3.5, 9652737.087744042}, {perm, 0.5, 1, 0.5}, {comb, 0.5, 1, 0.5},
        {comb, 6.25, -1.5, -0.01375328034981618}, {comb, 100.25, 3.5, 829862.66173414},
        {comb, 10, 2.5, 77.80235599418519},
    };
    // clang-format on
    for (const Case& c : cases) {
        // The quotients on the way to a combination are rounded.
        EXPECT_LE(ulpDistance(c.function(c.a, c.b), c.value), 2) << c.a << ", " << c.b;
    }
}

} // namespace
} // namespace velmora
