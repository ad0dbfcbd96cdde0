#include "engine/lines/ExpressionWithLevelCurveHeightsList.h"

#include "engine/lines/ExpressionWithTokenArrayAndLevelCurveHeights.h"
#include "platform/files/KeyedArchive.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

LevelCurveHeights heights(bool on, int mode, std::vector<double> list, double start, double delta, int n) {
    LevelCurveHeights made;
    made.setLevelCurves(on);
    made.setMode(mode);
    made.setHeightArray(std::move(list));
    made.setStart(start);
    made.setDelta(delta);
    made.setN(n);
    return made;
}

TEST(LevelCurveHeights, listsItsHeights) {
    struct Row {
        LevelCurveHeights heights;
        int count;
        const char* text;
        double behindLast; ///< at the index that equals the count
    };
    const Row rows[] = {{{}, 1, "0", 0},
                        {heights(false, 1, {5, 6}, 3, 1, 2), 1, "0", 0},
                        {heights(true, 0, {0}, 0, 1, 1), 1, "0", 1},
                        {heights(true, 0, {9}, -1, 0.5, 5), 5, "-1, -0.5, 0, 0.5, 1", 1.5},
                        {heights(true, 0, {9}, 1, 1, 0), 0, "", 1},
                        {heights(true, 0, {9}, 1, 1, -3), -3, "", 0},
                        {heights(true, 1, {2, 1e9, 0.0005}, 1, 1, 1), 3, "2, 1E+09, 5E-04", 0},
                        {heights(true, 1, {}, 1, 1, 1), 0, "", 0},
                        {heights(true, 2, {4, 5}, 1, 1, 1), 2, "0, 0", 0}};
    for (const Row& row : rows) {
        EXPECT_EQ(row.heights.curveCount(), row.count);
        EXPECT_EQ(row.heights.heightsAsString(), row.text);
        EXPECT_EQ(row.heights.heightAtIndex(std::max(row.count, 0)), row.behindLast) << row.text;
        EXPECT_EQ(row.heights.heightAtIndex(std::max(row.count, 0) + 1), 0) << row.text;
        KeyedArchiver coder;
        row.heights.encodeWithCoder(coder);
        EXPECT_EQ(LevelCurveHeights::decode(KeyedUnarchiver(coder.propertyList())), row.heights);
    }
    EXPECT_EQ(heights(true, 0, {9}, 1, 1, 2).heightAtIndex(-1), 0);
    // A damaged file asking for two billion heights is shown in part.
    EXPECT_LT(heights(true, 0, {}, 0, 1, std::numeric_limits<int>::max()).heightsAsString().size(), 10000U);
}

TEST(LevelCurveHeights, editsItsList) {
    LevelCurveHeights edited;
    EXPECT_EQ(edited, heights(false, 0, {0}, 0, 1, 1));
    edited.incrementCount();
    EXPECT_TRUE(edited.setHeightAtIndex(1, 4) && edited.setHeightAtIndex(0, 2));
    EXPECT_FALSE(edited.setHeightAtIndex(2, 1) || edited.setHeightAtIndex(-1, 1));
    EXPECT_EQ(edited.heightArray(), (std::vector<double>{2, 4}));
    EXPECT_EQ(edited.firstHeight(), 2);
    for (int i = 0; i < 3; ++i) {
        edited.decrementCount();
    }
    EXPECT_TRUE(edited.heightArray().empty() && edited.firstHeight() == 0);
}

TEST(LevelCurveHeights, missingOrWrongFieldsReadAsNothing) {
    const PropertyList saved = PropertyDictionary{
        {"LevelCurvesKey", 1}, {"ModeKey", (std::int64_t{1} << 40) + 1}, {"NKey", "3"}, {"StartKey", 2.5}};
    EXPECT_EQ(LevelCurveHeights::decode(KeyedUnarchiver(saved)), heights(false, 0, {}, 2.5, 0, 0));
}

TEST(LevelCurveHeightsList, keepsHeightsBesideItsFunctions) {
    ExpressionWithLevelCurveHeightsList list(4);
    list.setExpressionAtIndex(1, ExpressionWithTokenArray(tokens("sin( x * y )")), false);
    EXPECT_EQ(list.descriptionWithIndex(1), "sin(x*y)=0");
    *list.levelCurveHeightsAtIndex(1) = heights(true, 0, {0}, 1, 2, 3);
    EXPECT_EQ(list.descriptionWithIndex(1), "sin(x*y)=1, 3, 5");
    EXPECT_EQ(list.levelCurveHeightsAtIndex(4), nullptr);
    EXPECT_EQ(list.levelCurveHeightsAtIndex(-1), nullptr);

    ExpressionWithLevelCurveHeightsList read(4);
    for (const PropertyList& saved : {list.archivedHeights(), PropertyList("no list")}) {
        read.loadHeights(saved);
        EXPECT_EQ(read.levelCurveHeightsArray(), list.levelCurveHeightsArray());
    }
    for (const std::size_t saved : {std::size_t{2}, std::size_t{9}}) { // short and long files
        read.loadHeights(PropertyArray(saved, PropertyDictionary{{"NKey", 7}}));
        ASSERT_EQ(read.levelCurveHeightsArray().size(), 4U);
        EXPECT_EQ(read.levelCurveHeightsAtIndex(1)->n(), 7);
        EXPECT_EQ(read.levelCurveHeightsAtIndex(3)->n(), saved == 2 ? 1 : 7);
        read.loadHeights(PropertyArray{"no heights", PropertyArray()});
        EXPECT_EQ(*read.levelCurveHeightsAtIndex(0), LevelCurveHeights());
        EXPECT_EQ(*read.levelCurveHeightsAtIndex(1), LevelCurveHeights());
    }
}

TEST(LevelCurveHeightsLine, copiesWithHeightsOfItsOwn) {
    ExpressionWithTokenArrayAndLevelCurveHeights line(tokens("x y"));
    line.levelCurveHeights().setHeightAtIndex(0, 3);
    const std::unique_ptr<ExpressionWithTokenArray> base = line.copy();
    auto* copy = dynamic_cast<ExpressionWithTokenArrayAndLevelCurveHeights*>(base.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->toDisplayString(), "xy");
    copy->levelCurveHeights().setHeightAtIndex(0, 4);
    EXPECT_EQ(line.levelCurveHeights().firstHeight(), 3);
    EXPECT_EQ(copy->levelCurveHeights().firstHeight(), 4);
}

} // namespace
} // namespace velmora
