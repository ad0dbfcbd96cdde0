#include "engine/NamedExpressionList.h"

#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(NamedExpression, showsItsNameAndParsesToItsExpression) {
    TokenArray line = tokens("2 ^");
    line.emplace_back(NamedExpression(tokens("1 + 2"), "sum"));
    EXPECT_EQ(toDisplayString(line), "2^sum");
    EXPECT_EQ(Expression::newExpressionWithTokens(line)->value(), 8.0);
    const NamedExpression wrong(tokens("1 +"), "wrong");
    EXPECT_EQ(wrong.expression()->errorDescription(), "Unable to parse");
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

} // namespace
} // namespace velmora
