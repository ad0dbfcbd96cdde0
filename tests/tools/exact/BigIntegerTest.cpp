#include "tools/exact/BigInteger.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

BigInteger number(const char* text) {
    return text[0] == '-' ? -BigInteger::fromDigits(text + 1) : BigInteger::fromDigits(text);
}

TEST(BigInteger, writesWhatItReads) {
    for (const char* text :
         {"0", "7", "-1", "4294967295", "4294967296", "-18446744073709551616", "1000000000",
          "123456789012345678901234567890", "1000000000000000000000000000001"}) {
        EXPECT_EQ(number(text).text(), text);
    }
    EXPECT_EQ(BigInteger(INT64_MIN).text(), "-9223372036854775808");
    EXPECT_EQ((-BigInteger(0)).text(), "0");
    EXPECT_EQ(BigInteger::powerOfTen(40).text(), "1" + std::string(40, '0'));
}

TEST(BigInteger, calculatesAsPlainNumbersDo) {
    std::mt19937_64 random(5);
    for (int round = 0; round < 2000; ++round) {
        const auto a = static_cast<std::int64_t>(random()) >> (1 + random() % 61);
        const auto b = static_cast<std::int64_t>(random()) >> (1 + random() % 61);
        EXPECT_EQ(BigInteger(a) * BigInteger(b >> 32),
                  BigInteger(a >> 31) * BigInteger((b >> 32) * (std::int64_t{1} << 31)) +
                      BigInteger((a & 0x7fffffff) * (b >> 32)));
        EXPECT_EQ((BigInteger(a) + BigInteger(b)).text(), std::to_string(a + b));
        EXPECT_EQ(BigInteger(a) < BigInteger(b), a < b);
        if (b != 0) {
            EXPECT_EQ(BigInteger::divide(a, b).quotient, BigInteger(a / b));
            EXPECT_EQ(BigInteger::divide(a, b).remainder, BigInteger(a % b));
        }
    }
}

BigInteger randomNumber(std::mt19937_64& random, std::size_t limbs) {
    BigInteger value;
    for (std::size_t i = 0; i < limbs; ++i) {
        // Limbs of all ones or zeroes are where carries go wrong.
        const std::uint64_t kind = random() % 4;
        const std::uint64_t limb = kind == 0 ? 0 : kind == 1 ? 0xffffffff : random() & 0xffffffff;
        value = (value << 32) + BigInteger(static_cast<std::int64_t>(limb));
    }
    return random() % 2 == 0 ? value : -value;
}

TEST(BigInteger, quotientTimesDivisorPlusRemainderIsTheDividend) {
    std::mt19937_64 random(6);
    for (int round = 0; round < 3000; ++round) {
        const BigInteger a = randomNumber(random, 1 + random() % 12);
        const BigInteger b = randomNumber(random, 1 + random() % 6);
        if (b.isZero()) {
            continue;
        }
        const auto [quotient, remainder] = BigInteger::divide(a, b);
        EXPECT_EQ(quotient * b + remainder, a);
        EXPECT_LT(remainder.magnitude(), b.magnitude());
        EXPECT_TRUE(remainder.isZero() || remainder.isNegative() == a.isNegative());
        const BigInteger floor = BigInteger::floorQuotient(a, b);
        EXPECT_GE((a - floor * b) * BigInteger(b.sign()), BigInteger(0));
        EXPECT_LT(((a - floor * b) * BigInteger(b.sign())), b.magnitude());
        EXPECT_EQ((a << 77) >> 77, a);
        const BigInteger root = a.magnitude().squareRoot();
        EXPECT_LE(root * root, a.magnitude());
        EXPECT_GT((root + 1) * (root + 1), a.magnitude());
    }
}

TEST(BigInteger, dividesWhereTheFirstGuessOfADigitIsTooLarge) {
    // The dividend makes the last correction of the schoolbook division necessary.
    const BigInteger a = (BigInteger(0x7fffffff) << 96) + (BigInteger(0x80000000) << 64);
    const BigInteger b = (BigInteger(0x80000000) << 64) + BigInteger(1);
    const auto [quotient, remainder] = BigInteger::divide(a, b);
    EXPECT_EQ(quotient.text(), "4294967294");
    EXPECT_EQ(quotient * b + remainder, a);
}

} // namespace
} // namespace velmora
