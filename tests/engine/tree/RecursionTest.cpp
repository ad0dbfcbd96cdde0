#include "engine/lines/ExpressionWithTokenArray.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

constexpr const char* kFound = "Recursion found.";

struct Definition {
    char list; ///< 'y' for equations, 'k' for constants
    int number;
    const char* line;
};

ExpressionList& listOf(Definitions& user, char list) {
    return list == 'k' ? static_cast<ExpressionList&>(user.constants) : user.equations;
}

std::string result(const std::string& line) { return ExpressionWithTokenArray(tokens(line)).resultText(); }

std::string numbered(const char* prefix, int number, const char* suffix = "") {
    return prefix + std::to_string(number) + suffix;
}

TEST(Recursion, isRefusedWhereADefinitionIsStored) {
    struct Row {
        std::vector<Definition> stored;
        Definition last;
        bool accepted;
    };
    // clang-format off
    const Row rows[] = {
        {{}, {'y', 1, "y1( x )"}, false}, {{}, {'y', 1, "2 + sin( y1( 3 ) )"}, false},
        {{}, {'y', 1, "conditional( 1 , x , y1( x ) )"}, false},
        {{}, {'y', 1, "y2( y1( x ) )"}, false}, // through the argument
        {{}, {'y', 1, "y2( x )"}, true}, {{{'y', 1, "x"}}, {'y', 1, "y2( x )"}, true},
        {{{'y', 2, "y1( x )"}}, {'y', 1, "y2( x )"}, false},
        {{{'y', 2, "y3( x )"}, {'y', 3, "gcd( 2 , y1( 1 ) )"}}, {'y', 1, "y2( x )"}, false},
        {{}, {'k', 1, "@k1"}, false}, {{}, {'k', 1, "@k1 x"}, false},
        {{{'k', 2, "@k1 + 1"}}, {'k', 1, "2 @k2"}, false}, {{{'k', 2, "@k1 + 1"}}, {'k', 1, "2"}, true},
        {{{'k', 2, "@k3"}, {'k', 3, "- @k1"}}, {'k', 1, "sin( @k2 )"}, false},
        {{{'k', 1, "y1( 2 )"}}, {'y', 1, "@k1 x"}, false}, {{{'y', 1, "@k1 x"}}, {'k', 1, "y1( 2 )"}, false},
        {{{'y', 1, "y2( x )"}, {'k', 1, "y1( 2 )"}}, {'y', 2, "@k1"}, false},
        {{{'y', 1, "@k1"}, {'k', 1, "3"}}, {'y', 2, "y1( @k1 ) + @k1"}, true}, // twice is no circle
    };
    // clang-format on
    for (const Row& row : rows) {
        Definitions user;
        for (const Definition& stored : row.stored) {
            ASSERT_TRUE(user.store(listOf(user, stored.list), stored.number - 1, stored.line)) << stored.line;
        }
        EXPECT_EQ(user.store(listOf(user, row.last.list), row.last.number - 1, row.last.line), row.accepted)
            << row.last.line;
        for (const Definition& stored : row.stored) { // what was there still works
            EXPECT_NE(listOf(user, stored.list).entryAtIndex(stored.number - 1)->resultText(), kFound);
        }
    }
}

TEST(Recursion, circlesThatAFileBringsAreFoundOnTheLine) {
    const std::pair<std::vector<Definition>, const char*> rows[] = {
        {{{'y', 1, "y1( x ) + 1"}}, "y1( 2 )"},
        {{{'y', 1, "y2( x )"}, {'y', 2, "y2( x )"}}, "1 + y1( 2 )"}, // never back to the first
        {{{'y', 1, "y2( x )"}, {'y', 2, "y1( x ) + y1( x )"}}, "y2( 2 )"},
        {{{'k', 1, "@k1 + 1"}}, "@k1"},
        {{{'k', 1, "@k2"}, {'k', 2, "@k1 x"}}, "2 @k1"},
        {{{'k', 1, "@k2"}, {'k', 2, "@k2 @k2"}}, "sin( @k1 )"},
        {{{'y', 1, "@k1"}, {'k', 1, "y1( 1 )"}}, "y1( 2 )"},
        {{{'y', 1, "@k1"}, {'k', 1, "y1( 1 )"}}, "@k1"},
        {{{'y', 1, "x"}, {'k', 1, "@k1"}}, "y1( @k1 )"}};
    for (const auto& [loaded, line] : rows) {
        Definitions user;
        for (const Definition& definition : loaded) {
            user.load(listOf(user, definition.list), definition.number - 1, definition.line);
        }
        ExpressionWithTokenArray entry(tokens(line));
        EXPECT_EQ(entry.resultText(), kFound) << line;
        EXPECT_TRUE(isNaN(entry.resultValue())) << line;
        entry.keepResult();
        EXPECT_EQ(entry.resultText(), kFound) << line;
        // Where nobody asks beforehand, the value itself is undefined and comes back soon.
        EXPECT_TRUE(isNaN(entry.expression()->valueWithVariableValue(2.0))) << line;
        EXPECT_FALSE(entry.expression()->description().empty());
    }
}

TEST(Recursion, aCircleCanBeMended) {
    Definitions user;
    user.load(user.constants, 0, "@k2");
    user.load(user.constants, 1, "@k1");
    EXPECT_EQ(result("@k1 + 1"), kFound);
    EXPECT_TRUE(user.store(user.constants, 1, "4"));
    EXPECT_EQ(result("@k1 + 1"), "5");
    ExpressionWithTokenArray line(tokens("y1( 1 )"));
    user.load(user.equations, 0, "y1( x )");
    EXPECT_EQ(line.resultText(), kFound);
    user.load(user.equations, 0, "x + @k1");
    EXPECT_EQ(line.resultText(), "5");
    user.load(user.constants, 1, "6"); // seen through equation and constant
    EXPECT_EQ(line.resultText(), "7");
}

TEST(Recursion, dependenceIsByIdentity) {
    Definitions user;
    user.load(user.equations, 0, "x + 1");
    user.load(user.equations, 1, "sin( y1( x ) )");
    user.load(user.constants, 0, "y2( 3 )");
    const auto first = user.equations.expression(0);
    const auto equal = parsed("x + 1");
    const std::pair<const char*, bool> rows[] = {
        {"y1( x )", true}, {"2 ^ y2( x )", true},   {"@k1 + 1", true},   {"y3( x )", false},
        {"x + 1", false},  {"y3( y1( 1 ) )", true}, {"y1( x ) +", true}, {"sin(", false}};
    for (const auto& [line, depends] : rows) {
        const auto tree = parsed(line);
        EXPECT_EQ(tree->dependsOnExpression(*first), depends) << line;
        EXPECT_FALSE(tree->dependsOnExpression(*equal)) << line;
        EXPECT_FALSE(tree->hasRecursion()) << line;
    }
}

TEST(Recursion, sharedConstantsCostTheirNumber) {
    // Doublings, and the Fibonacci numbers: 2^49 and F(51) visits if nothing were shared.
    for (const bool doubling : {true, false}) {
        Definitions user;
        for (int i = 49; i >= 1; --i) {
            const std::string next = numbered("@k", i + 1);
            const std::string other = doubling || i == 49 ? next : numbered("@k", i + 2);
            EXPECT_TRUE(user.store(user.constants, i - 1, next + " + " + other));
        }
        EXPECT_TRUE(user.store(user.constants, 49, "x"));
        const double expected = doubling ? std::pow(2.0, 49) : 20365011074.0;
        EXPECT_EQ(valueAt("@k1", 1), expected);
        EXPECT_EQ(valueAt("@k1", ComplexValue(0, 1)), ComplexValue(0, expected));
        EXPECT_FALSE(parsed("@k1")->hasRecursion());
        EXPECT_FALSE(parsed("@k1")->description().empty());
        EXPECT_FALSE(user.store(user.constants, 49, "@k1"));
    }
}

TEST(Recursion, longChainsOfEquationsAnswerOrAreUndefined) {
    for (const int length : {400, 5000}) {
        Definitions user;
        for (int i = 1; i < length; ++i) {
            user.load(user.equations, i - 1, numbered("y", i + 1, "( x ) + 1"));
        }
        user.load(user.equations, length - 1, "x");
        const std::string text = result("y1( 5 )");
        EXPECT_EQ(text, length == 400 ? "404" : "Unable to parse"); // high, but no circle
        ExpressionWithTokenArray kept(tokens("y1( 5 )"));
        kept.keepResult();
        EXPECT_EQ(kept.resultText(), text);
        EXPECT_TRUE(user.store(user.equations, 0, "y2( x ) + 2"));
        user.load(user.equations, length - 1, "y1( x )");
        EXPECT_EQ(result("y1( 5 )"), kFound);
    }
    // Each calls the next three times: 3^40 calls if nobody counted.
    Definitions user;
    for (int i = 1; i < 40; ++i) {
        const std::string call = numbered("y", i + 1, "( x )");
        user.load(user.equations, i - 1, call + " + " + call + " + " + call);
    }
    user.load(user.equations, 39, "x");
    EXPECT_EQ(result("y1( 1 )"), "Undefined");
    EXPECT_EQ(result("y32( 1 )"), "6561");
}

} // namespace
} // namespace velmora
