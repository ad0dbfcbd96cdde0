#include "engine/lines/ExpressionList.h"

#include "engine/tree/TargetAndIndex.h"
#include "platform/files/PropertyList.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace velmora {
namespace {

std::vector<std::string> lines(const ExpressionList& list) {
    std::vector<std::string> texts;
    for (int i = 0; i < list.nExpressions(); ++i) {
        texts.push_back(list.expressionString(i));
    }
    return texts;
}

PropertyList savedLine(const std::string& line) {
    return PropertyDictionary{{"TokenArrayKey", archivedTokenArray(tokens(line))}};
}

TEST(ExpressionList, namesItsEntries) {
    struct Row {
        const char* name;
        const char* variables;
        int index;
        const char* description;
        std::vector<std::string> variableNames;
    };
    ExpressionList list(4);
    list.setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("sin( x )")), false);
    for (const Row& row : {Row{"y", "x", 0, "y1(x)=sin(x)", {"x"}}, Row{"r", "θ", 1, "r2(θ)=", {"θ"}},
                           Row{"f", "x, y", 3, "f4(x, y)=", {"x", "y"}}, Row{"x", "t", 9, "x10(t)=", {"t"}},
                           Row{"", "", 2, "3()=", {""}}, Row{"f", "x,y", 2, "f3(x,y)=", {"x,y"}}}) {
        list.setFunctionName(row.name);
        list.setVariableNameString(row.variables);
        EXPECT_EQ(list.descriptionWithIndex(row.index), row.description);
        EXPECT_EQ(list.variableNameArray(), row.variableNames);
    }
}

TEST(ExpressionList, outOfRangeSlotsGiveNothing) {
    ExpressionList list(4);
    list.setExpressionAtIndex(3, ExpressionWithTokenArray(tokens("1 +")), false);
    for (const int index : {-1, 4, 1000000}) {
        EXPECT_TRUE(!list.expression(index) && !list.expressionTokenArray(index)) << index;
        EXPECT_TRUE(list.expressionString(index).empty() && !list.nonemptyExpressionAtIndex(index)) << index;
    }
    EXPECT_FALSE(list.nonemptyExpressionAtIndex(0));
    EXPECT_TRUE(list.nonemptyExpressionAtIndex(3)); // unreadable, yet not empty
    EXPECT_EQ(list.lastExpression(), list.expression(3));
    list.reset();
    EXPECT_EQ(list.lastExpression(), nullptr);
}

TEST(ExpressionList, theHistoryDropsItsOldest) {
    ExpressionList history(50, 0);
    EXPECT_EQ(history.nExpressions(), 0);
    for (int i = 1; i <= 52; ++i) {
        history.addExpressionTokenArray(textsOfCharacters(std::to_string(i)));
    }
    EXPECT_EQ(history.nExpressions(), 50);
    EXPECT_EQ(history.expressionString(0) + " " + history.expressionString(49), "3 52");
}

TEST(ExpressionList, aRefusedDefinitionLeavesTheFormerOne) {
    Definitions user;
    EXPECT_TRUE(user.store(user.equations, 0, "x + 1"));
    EXPECT_FALSE(user.store(user.equations, 0, "2 y1( x )"));
    EXPECT_EQ(shown("y1( 2 )"), "3");
    EXPECT_FALSE(user.store(user.equations, 5, "y6( x )")); // the list has grown for it
    EXPECT_EQ(lines(user.equations), (std::vector<std::string>{"x+1", "", "", "", "", ""}));
    EXPECT_TRUE(user.store(user.equations, 0, "2 +")); // unreadable is no recursion
    user.load(user.equations, 0, "y1( x )");
    EXPECT_EQ(user.equations.expressionString(0), "y1(x)");
}

TEST(ExpressionList, loadsWhatFilesHold) {
    struct Row {
        const char* what;
        int max;
        int n;
        PropertyList saved;
        std::vector<std::string> loaded;
    };
    const PropertyArray threeLines{savedLine("1"), savedLine("2"), savedLine("3")};
    // clang-format off
    const Row rows[] = {
        {"entries", 3, 3, PropertyArray{savedLine("1 + 2"), savedLine("")}, {"1+2", "", "kept"}},
        {"texts of old files", 3, 3, PropertyArray{PropertyArray{"sin(", "@k1", ")"}, PropertyArray{}},
         {"sin(k1)", "", "kept"}},
        {"tokens, texts", 3, 3, PropertyArray{archivedTokenArray(tokens("2 ^")), PropertyArray{"G=6.7(2)"}},
         {"2^", "G", "kept"}},
        {"others are skipped", 3, 3, PropertyArray{"1", 7, savedLine("4")}, {"kept", "kept", "4"}},
        {"nothing", 3, 3, PropertyArray{}, {"kept", "kept", "kept"}},
        {"no array", 3, 3, savedLine("1"), {"kept", "kept", "kept"}},
        {"the first of too many slots", 2, 2, threeLines, {"1", "2"}},
        {"the newest of too long a history", 2, 0, threeLines, {"2", "3"}},
        {"a short history", 9, 0, PropertyArray{savedLine("1")}, {"1"}},
    };
    // clang-format on
    for (const Row& row : rows) {
        ExpressionList list(row.max, row.n);
        for (int i = 0; i < row.n; ++i) {
            list.setExpressionAtIndex(i, ExpressionWithTokenArray(tokens("kept")), false);
        }
        list.loadWithObject(row.saved);
        EXPECT_EQ(lines(list), row.loaded) << row.what;
        EXPECT_EQ(list.maxExpressions(), row.max);
        ExpressionList again(row.max, row.n);
        again.loadWithObject(list.expressionTokenArrays());
        EXPECT_EQ(lines(again), row.loaded) << row.what;
    }
    // Loaded texts are tokens, so they parse.
    ExpressionList list(1);
    list.loadWithObject(PropertyArray{PropertyArray{"1", "+", "2"}});
    EXPECT_EQ(list.expression(0)->value(), 3.0);
}

TEST(NamedExpressionList, namesItsEntries) {
    NamedExpressionList list(50, 3);
    list.setFunctionName("@k");
    EXPECT_EQ(list.nameArray().size(), 3U);
    EXPECT_EQ(list.fullFunctionNameWithIndex(0), "k1");
    EXPECT_EQ(list.nameArray().size(), 50U); // padded when a name is first asked for
    list.setNameAtIndex(0, "g");
    list.setNameAtIndex(-1, "nothing");
    list.setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("9 . 8 1")), true);
    EXPECT_EQ(list.descriptionWithIndex(0), "g=9.81");
    const std::pair<int, const char*> rows[] = {{0, "g"}, {2, "k3"}, {49, "k50"}, {60, "k61"}, {-1, "k0"}};
    for (const auto& [index, name] : rows) {
        EXPECT_EQ(list.fullFunctionNameWithIndex(index), name);
    }
    list.setNameAtIndex(0, "");
    EXPECT_EQ(list.fullFunctionNameWithIndex(0), "k1");
    list.setNameArray(std::vector<std::string>(60, "n")); // of a damaged file
    EXPECT_EQ(list.nameArray().size(), 50U);
}

TEST(TargetAndIndex, looksAtTheSecondCharacterOnly) {
    Definitions user;
    // clang-format off
    const std::pair<const char*, std::optional<int>> rows[] = {
        {"y4", 3}, {"y12(", 11}, {"y0(", -1}, {"y1x", 0}, {"y", {}}, {"yx(", {}}, {"Y1(", {}}, {"", {}},
        {"y-1(", {}}, {"θ1(", {}}, {"y99999999999(", std::numeric_limits<int>::max() - 1},
    };
    // clang-format on
    for (const auto& [text, index] : rows) {
        const auto target = TargetAndIndex::newTargetAndIndexWithToken(text);
        ASSERT_EQ(target.has_value(), index.has_value()) << text;
        EXPECT_TRUE(!target || (target->target == &user.equations && target->intIndex == *index)) << text;
    }
}

TEST(UserFunction, evaluatesItsEquation) {
    Definitions user;
    user.load(user.equations, 0, "x ^ 2 + 1");
    user.load(user.equations, 1, "y1( y1( t ) ) - y");
    user.load(user.equations, 2, "2 +");
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        {"y1( 3 )", "10"}, {"y1( 2 i )", "-3"}, {"y1( i + 1 )", "1+2i"}, {"y1( sqrt( - 1 ) )", "0"},
        {"y2( 1 )", "4"},         // every variable is it
        {"y3( 1 )", "Undefined"}, // the error belongs to the equation
        {"y4( 1 )", "Undefined"}, {"y0( 1 )", "Undefined"}, {"y5( 1 )", "Undefined"},
        {"y99999999999( 1 )", "Undefined"}, {"y1( 1 / 0 )", "Undefined"},
    };
    // clang-format on
    for (const auto& [line, text] : rows) {
        EXPECT_EQ(shown(line), text) << line;
    }
    const auto tree = parsed("y1( x )"); // the slot is looked up at every evaluation
    user.load(user.equations, 0, "7");
    EXPECT_EQ(tree->valueWithVariableValue(0.0), 7.0);
    user.environment.equationsList = nullptr;
    EXPECT_EQ(shown("y1( 1 )"), "Undefined");
}

} // namespace
} // namespace velmora
