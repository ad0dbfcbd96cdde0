#include "tools/exact/Fraction.h"

#include "engine/numbers/ShortNumber.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <random>

namespace velmora {
namespace {

TEST(Fraction, takesATextAtItsWord) {
    struct Row {
        const char* text;
        Fraction value;
    };
    const Row rows[] = {{"0.1", {1, 10}},    {" +2.50 ", {5, 2}}, {"-.5", {-1, 2}},     {"−3", {-3, 1}},
                        {"1E-3", {1, 1000}}, {"5.", {5, 1}},      {"12e+2", {1200, 1}}, {"0e999", {0, 1}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const auto value = fractionOfText(row.text);
        ASSERT_TRUE(value);
        EXPECT_EQ(compare(*value, row.value), std::strong_ordering::equal);
    }
    for (const char* text : {"", "x", "1,5", "1e999", "1e-999", "inf", "nan", "0x10", "1 2", "--1", "1e"}) {
        EXPECT_FALSE(fractionOfText(text)) << text;
    }
}

TEST(Fraction, roundsByItsMagnitude) {
    struct Row {
        Fraction value;
        Rounding rounding;
        Decimal decimal;
    };
    using enum Rounding;
    const Row rows[] = {{{1, 3}, HalfUp, {false, "333", -1}},
                        {{2, 3}, HalfUp, {false, "667", -1}},
                        {{-2, 3}, HalfDown, {true, "667", -1}},
                        {{12345, 1}, HalfUp, {false, "123", 4}},
                        {{1235, 1}, HalfUp, {false, "124", 3}},
                        {{1235, 1}, HalfDown, {false, "123", 3}},
                        {{9995, 10}, HalfUp, {false, "1", 3}},
                        {{1, 1000}, Up, {false, "1", -3}},
                        {{1001, 1}, Up, {false, "101", 3}},
                        {{1, BigInteger::powerOfTen(400)}, HalfUp, {false, "1", -400}},
                        {{BigInteger::powerOfTen(400) - 1, 1}, HalfUp, {false, "1", 400}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value.numerator.text() + "/" + row.value.denominator.text());
        EXPECT_EQ(rounded(row.value, 3, row.rounding), row.decimal);
    }
    EXPECT_EQ(rounded({}, 3), Decimal());
}

TEST(Fraction, writesAndReadsAsShortNumberDoes) {
    std::mt19937_64 random(8);
    for (int round = 0; round < 3000; ++round) {
        const double value = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
                                        static_cast<int>(random() % 160) - 140);
        const std::string text = shortNumber(value);
        const Decimal decimal = rounded(fractionOfDouble(value), 6);
        EXPECT_EQ(textOfDecimal(decimal, 6), text);
        EXPECT_EQ(decimalOfText(text), decimal);
    }
    EXPECT_FALSE(decimalOfText("nan"));
    EXPECT_EQ(decimalOfText("0"), Decimal());
}

TEST(Fraction, theNearestDoubleOfATextIsTheOneThatTheLibraryReads) {
    const char* texts[] = {"0.1",
                           "1e23",
                           "9007199254740993",
                           "9007199254740992.99999",
                           "4.9e-324",
                           "2.4e-324",
                           "1.7976931348623157e308",
                           "2.2250738585072011e-308",
                           "-123456.789e-20"};
    for (const char* text : texts) {
        double expected = 0;
        std::from_chars(text, text + std::strlen(text), expected);
        const auto value = fractionOfText(text);
        if (value) { // what is too small for a double is refused
            EXPECT_EQ(nearestDouble(*value), expected) << text;
            EXPECT_EQ(nearestDouble(fractionOfDouble(expected)), expected) << text;
        }
    }
    EXPECT_EQ(nearestDouble({BigInteger::powerOfTen(309), 1}), INFINITY);
    EXPECT_EQ(nearestDouble({-BigInteger::powerOfTen(309), 1}), -INFINITY);
    EXPECT_EQ(nearestDouble({1, BigInteger::powerOfTen(400)}), 0);
}

} // namespace
} // namespace velmora
