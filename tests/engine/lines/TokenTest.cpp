#include "engine/lines/Token.h"

#include "engine/tree/Number.h"
#include "platform/files/KeyedArchive.h"
#include "tests/engine/SpecialNumbers.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

TEST(Token, showsItsTextLabelOrName) {
    Definitions user;
    user.constants.setNameAtIndex(1, "mass");
    // clang-format off
    const std::tuple<const char*, const char*, const char*> rows[] = { // as shown, and as a list names it
        {"", "", ""}, {"=", "=", "="}, // one character is never a label
        {"(", "(", "("}, // nor a function
        {"θ", "θ", "θ"}, // one character of two bytes
        {"π", "π", "π"}, {"sin(", "sin(", "sin()"},
        {"G=6.6742(8)", "G", "G"}, // the bracket of the value is not shown
        {"σ=5.67E-8", "σ", "σ"}, {"a=b=5", "a", "a"}, {"==", "", ""}, {"@k1", "k1", "k1"},
        {"@k2", "mass", "mass"}, {"@k12", "k12", "k12"}, {"@k", "k0", "k0"},
        {"@k99999999999", "k99999999999", "k99999999999"}, // beyond any list, yet shown as typed
        {"@k-2147483648", "k-2147483648", "k-2147483648"}, {"@q", "@q", "@q"},
    };
    // clang-format on
    for (const auto& [text, display, listed] : rows) {
        EXPECT_EQ(Token(text).toDisplayString(), display) << text;
        EXPECT_EQ(Token(text).functionListDisplayString(), listed) << text;
    }
}

TEST(Token, plainTextsOnKeysAreShownLikeTokens) {
    const std::pair<const char*, const char*> rows[] = {
        {"k@abc", "@abc"}, {"@k1", "@k1"}, {"@@=1", "@=1"}, {"θ@b=c", "@b=c"}, // the second character counts
        {"G=6.7", "G"},    {"=x", ""},     {"=", "="},      {"@", "@"},        {"", ""}, {"sin(", "sin("}};
    for (const auto& [text, display] : rows) {
        EXPECT_EQ(toDisplayString(std::string_view(text)), display) << text;
    }
}

TEST(Token, splitsTrailingCommasOff) {
    for (const auto& [text, expected] : {std::pair{"normVarBetween(,,", "normVarBetween( , ,"},
                                         {"gcd(,", "gcd( ,"},
                                         {"sin(", "sin("},
                                         {"a,b,", "a,b ,"}}) { // commas inside stay
        const TokenArray split = Token::tokenArrayWithString(text);
        const TokenArray sought = tokens(expected);
        EXPECT_TRUE(std::ranges::equal(split, sought, {}, &TokenElement::toDisplayString,
                                       &TokenElement::toDisplayString))
            << text;
    }
}

TEST(Token, knowsConstantsWithAnUncertainDigit) {
    const std::pair<const char*, bool> rows[] = {
        {"G=6.6742(8)", true}, {"=(8)", true},   {"a(8)", false}, {"G=6.67(42)", false},
        {"G=6.6742(8", false}, {"a(=)", false},  {"(8)", false},  {"G=θ(8)", true},
        {"G=1(θ)", true}, // characters, not bytes
        {"a=1(8)E5", false},   {"abc)=", false}, {"", false},     {")", false}};
    for (const auto& [text, uncertain] : rows) {
        EXPECT_EQ(isConstantWithUncertainFinalDigit(text), uncertain) << text;
    }
}

TEST(Token, plainTextsBecomeTokensInPlace) {
    TokenArray line = textsOfCharacters("2π)");
    line.emplace(line.begin() + 1, std::make_shared<const Number>(7));
    ASSERT_EQ(line.size(), 4U);
    EXPECT_EQ(*line[2].text(), "π");
    EXPECT_EQ(toDisplayString(line), "2(7)π)");
    changeStringsToTokens(line);
    EXPECT_EQ(line[2].token()->internalRepresentation(), "π");
    EXPECT_NE(line[1].expression(), nullptr);
    EXPECT_TRUE(textsOfCharacters("").empty());
}

TEST(Token, linesSurviveTheArchive) {
    TokenArray line = tokens("sin( @k3 θ '' G=6.6742(8)");
    line.emplace_back(std::string("plain"));
    line.emplace_back(std::make_shared<const Number>(ComplexValue(0.1, -1e300)));
    line.emplace_back(NamedExpression(std::make_shared<const Number>(7), "ans"));
    line.emplace_back(NamedExpression(tokens("x + 1"), "sum"));            // only its name is saved
    line.emplace_back(std::shared_ptr<const Expression>(parsed("x + 1"))); // has no saved form
    const TokenArray read = unarchivedTokenArray(archivedTokenArray(line));
    ASSERT_EQ(read.size(), 9U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(*read[i].token(), *line[i].token());
    }
    EXPECT_EQ(*read[5].text(), "plain");
    EXPECT_EQ((*read[6].expression())->value(), ComplexValue(0.1, -1e300));
    EXPECT_EQ(read[7].namedExpression()->name(), "ans");
    EXPECT_EQ(read[7].namedExpression()->expression()->value(), 7.0);
    EXPECT_TRUE(read[8].namedExpression()->name() == "sum" && !read[8].namedExpression()->expression());
    const PropertyList damaged = PropertyArray{1, PropertyDictionary{{"Kind", "Token"}}, true, "x"};
    EXPECT_EQ(unarchivedTokenArray(damaged).size(), 1U);
}

TEST(NumberText, showsAsItIsReadBack) {
    EXPECT_EQ(Number(-0.5).toDisplayString(), "(-0.5)");
    EXPECT_EQ(Number(2.5e10).toDisplayString(), "(2.5E+10)");
    EXPECT_EQ(Number(ComplexValue(0, 1)).toDisplayString(),
              "(complex)"); // no digit: the letter e stays
    EXPECT_EQ(Number(kInfinity).toDisplayString(), "(Very large or infinite)");
}

TEST(NumberText, anImaginaryPartIsSavedOnlyWhereThereIsOne) {
    for (const ComplexValue value : {ComplexValue(2.5, 0), ComplexValue(0, -1), ComplexValue(1e-320, 3)}) {
        KeyedArchiver coder;
        Number(value).encodeWithCoder(coder);
        const KeyedUnarchiver saved(coder.propertyList());
        EXPECT_EQ(saved.containsValueForKey("NumberImaginary"), value.imag() != 0);
        EXPECT_EQ(Number::decode(saved)->number(), value);
    }
}

} // namespace
} // namespace velmora
