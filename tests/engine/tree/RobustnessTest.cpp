#include "engine/lines/ExpressionWithTokenArray.h"
#include "engine/tree/Number.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr int kMany = 100000;

TokenArray joined(std::initializer_list<TokenArray> parts) {
    TokenArray line;
    for (const TokenArray& part : parts) {
        line.insert(line.end(), part.begin(), part.end());
    }
    return line;
}

/// Everything that is ever asked of a line. Returns what it shows.
std::string asked(TokenArray tokens) {
    const ExpressionWithTokenArray line(std::move(tokens));
    const auto tree = line.expression();
    tree->valueWithVariableValue(0.5);
    tree->valueWithVariableValue({0.5, 1});
    tree->valueWithVariableValues(0.5, 2.0);
    EXPECT_FALSE(tree->description().empty());
    EXPECT_FALSE(tree->dependsOnExpression(Number(1)));
    EXPECT_FALSE(tree->hasRecursion());
    EXPECT_NE(line.copy(), nullptr);
    EXPECT_FALSE(line.displayStringWithCursor().empty());
    line.enoughRightParens();
    return line.resultText();
}

TEST(Robustness, linesOfManyTokensAnswer) {
    const TokenArray one = tokens("1");
    const std::pair<TokenArray, const char*> rows[] = {
        {joined({repeated("(", kMany), one, repeated(")", kMany)}), "1"},
        {repeated("0", kMany), "0"},
        {repeated(")", kMany), "Parse error (parentheses?)"},
        {joined({repeated("(", kMany), one, repeated(")", kMany + 1)}), "Parse error (parentheses?)"},
        {joined({repeated("gcd(", kMany), one, repeated(")", kMany)}), "Parse error (missing comma?)"},
        {joined({repeated("(", kMany), repeated(")", kMany)}), "Unable to parse"},
        {joined({tokens("gcd("), repeated(",", kMany), tokens(")")}), "Unable to parse"},
        {joined({repeated("-", kMany), one}), "Unable to parse"}, // what would be too high to walk
        {joined({repeated("sin(", kMany), one, repeated(")", kMany)}), "Unable to parse"},
        {joined({one, repeated("''", kMany)}), "Unable to parse"},
        // each of its signs waits for the end of the line
        {joined({one, repeated("- 1 + 1", kMany / 4)}), "Unable to parse"}};
    for (const auto& [line, result] : rows) {
        EXPECT_EQ(asked(line), result) << line.front().toDisplayString();
    }
    for (const char* text : {"(", "-", "^", ",", "x", "sin(", "conditional("}) {
        EXPECT_EQ(asked(repeated(text, kMany)), "Unable to parse") << text;
    }
}

TEST(Robustness, deepTreesAnswerUpToTheLimitAndAreErrorsBeyond) {
    struct Row {
        const char* before;
        const char* middle;
        const char* after;
        const char* value;
    };
    const Row rows[] = {{"-", "1", "", "1"},
                        {"sin(", "0", ")", "0"},
                        {"2 ^", "1", "", "Very large or infinite"},
                        {"1 +", "1", "", "3001"}, // sums lean to the left
                        {"1 + (", "1", ")", "3001"},
                        {"gcd( 6 ,", "4", ")", "2"},
                        {"conditional( 1 ,", "5", ", 7 )", "Undefined"}};
    for (const Row& row : rows) {
        for (const int depth : {3000, 6000}) {
            TokenArray line =
                joined({repeated(row.before, depth), tokens(row.middle), repeated(row.after, depth)});
            EXPECT_EQ(asked(std::move(line)), depth == 3000 ? row.value : "Unable to parse") << row.before;
        }
    }
}

TEST(Robustness, wrappingAConstantOftenStaysWithinTheHeight) {
    // Each constant is nearly as high as a tree may be; together they would be fifty times that.
    Definitions user;
    for (int i = 50; i >= 1; --i) {
        const TokenArray inner = i == 50 ? tokens("x") : tokens("@k" + std::to_string(i + 1));
        user.constants.setExpressionAtIndex(
            i - 1, ExpressionWithTokenArray(joined({repeated("sin(", 3900), inner, repeated(")", 3900)})),
            false);
    }
    EXPECT_EQ(asked(tokens("@k1")), "Unable to parse");
    EXPECT_EQ(asked(tokens("@k50")), "Undefined");
    user.load(user.equations, 0, "@k50");
    EXPECT_EQ(asked(tokens("y1( 1 )")), "0.02771");
}

} // namespace
} // namespace velmora
