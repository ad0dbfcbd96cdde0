#include "tests/calculator/CalculatorFixture.h"

namespace velmora::test {
namespace {

class HistoryTest : public KeyboardTest {
public:
    void tap(int row, bool left) {
        keyboard->displayTableViewController()->historyCell(row, 320).buttonPressed(left);
    }
};

TEST_F(HistoryTest, tipStandsAboveTheHistoryUntilSettingsAreOpened) {
    open();
    const DisplayHistoryTableViewController& table = *keyboard->displayTableViewController();
    EXPECT_EQ(table.numberOfRows(), 1);
    EXPECT_EQ(table.reuseIdentifierForRow(0), "DisplayTipCell");
    const DisplayTipCell tip = table.tipCell(320);
    EXPECT_EQ(tip.tipLabel().text, "TIP:  Settings are available on the \"More\" tab.");
    EXPECT_EQ(tip.tipLabel().fontSize, 16); // 0.4 of 40
    EXPECT_EQ(tip.tipLabel().minimumFontSize, 10);

    press("4 =");
    EXPECT_EQ(table.numberOfRows(), 2);
    EXPECT_EQ(table.reuseIdentifierForRow(1), "DisplayHistoryCell");
    Model::m().setSettingsHaveBeenAccessed(true);
    EXPECT_EQ(table.numberOfRows(), 1);
    EXPECT_EQ(table.reuseIdentifierForRow(0), "DisplayHistoryCell");
}

TEST_F(HistoryTest, tapsInsertTheLineOrItsResult) {
    for (const bool withTip : {true, false}) {
        SCOPED_TRACE(withTip);
        Model::resetForTests();
        Model::m().setSettingsHaveBeenAccessed(!withTip);
        open();
        press("1 + 2 = 5 * 6 =");
        const int first = withTip ? 1 : 0;
        tap(first, true);
        EXPECT_EQ(entry(), "1+2");
        press("+"); // the cursor stands behind what was inserted
        tap(first + 1, false);
        EXPECT_EQ(entry(), "1+2+(30)");
        press("=");
        EXPECT_EQ(history().back(), "1+2+(30) = 33");
        tap(first + 7, true); // no such row
        EXPECT_EQ(entry(), "");
    }
}

TEST_F(HistoryTest, resultIsTheOneShown) {
    open();
    Model::m().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("2 * x")), true);
    keyboard->functionSelected("y1(");
    press("4 = =");
    EXPECT_EQ(history().back(), "y1(4) = 8");
    Model::m().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("3 * x")), true);
    EXPECT_EQ(history().back(), "y1(4) = 8"); // a later edit does not change a past result
    press("+ 1 =");
    EXPECT_EQ(history().back(), "ans+1 = 9");
    tap(1, false);
    press("=");
    EXPECT_EQ(history().back(), "(8) = 8");
}

TEST_F(HistoryTest, resultsAreWrittenInThePresentStyle) {
    open();
    press("1 / 3 =");
    Model::m().setDisplayDigits(3);
    EXPECT_EQ(history().back(), "1/3 = 0.333");
}

TEST_F(HistoryTest, otherTablesAreNotHeard) {
    open();
    press("1 =");
    const DisplayHistoryTableViewController another;
    another.historyCell(1, 320).buttonPressed(true);
    EXPECT_EQ(entry(), "");
}

TEST_F(HistoryTest, rowLayout) {
    Model::m().setLargeFontsOnPhone(true);
    open();
    const DisplayHistoryTableViewController& table = *keyboard->displayTableViewController();
    EXPECT_EQ(table.rowHeight(), 59);
    DisplayHistoryCell cell = table.historyCell(1, 320);
    EXPECT_EQ(cell.inputLabel().frame, (Rect{10, 0, 300, 29.5}));
    EXPECT_EQ(cell.outputLabel().frame, (Rect{10, 29.5, 300, 29.5}));
    EXPECT_EQ(cell.outputLabel().alignment, TextAlignment::Right);
    EXPECT_NEAR(cell.inputLabel().fontSize, 23.289473684, 1e-9); // 59 * 15 / 38
    EXPECT_EQ(cell.leftButtonFrame(), (Rect{0, 0, 80, 59}));
    EXPECT_EQ(cell.rightButtonFrame(), (Rect{240, 0, 80, 59}));
    cell.setRightButtonWidthMultiplier(2);
    cell.layout({320, 59});
    EXPECT_EQ(cell.rightButtonFrame(), (Rect{160, 0, 160, 59}));
    cell.layout({320, 40});
    EXPECT_EQ(cell.outputLabel().fontSize, 600.0 / 38); // the product first, which rounds only once
}

} // namespace
} // namespace velmora::test
