#include "tests/calculator/CalculatorFixture.h"

#include "platform/machine/Timer.h"

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
    EXPECT_EQ(table.reuseIdentifierForRow(1), "DisplayHistoryCell");
    Model::m().setSettingsHaveBeenAccessed(true);
    EXPECT_EQ(table.numberOfRows(), 1);
    EXPECT_EQ(table.reuseIdentifierForRow(0), "DisplayHistoryCell");
}

TEST_F(HistoryTest, tapsInsertTheLineOrItsResult) {
    for (const int tips : {1, 0}) {
        SCOPED_TRACE(tips);
        Model::resetForTests();
        Model::m().setSettingsHaveBeenAccessed(tips == 0);
        open();
        press("1 + 2 = 5 * 6 =");
        DisplayHistoryTableViewController().historyCell(tips, 320).buttonPressed(true); // of another screen
        EXPECT_EQ(entry(), "");
        tap(tips, true);
        press("+"); // the cursor stands behind what was inserted
        tap(tips + 1, false);
        EXPECT_EQ(entry(), "1+2+(30)");
        press("=");
        EXPECT_EQ(history().back(), "1+2+(30) = 33");
        tap(tips + 7, true); // no such row
        EXPECT_EQ(entry(), "");
    }
}

TEST_F(HistoryTest, keepsFiftyResultsAsTheyWereShown) {
    open();
    press("9 =");
    Model::m().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("2 * x")), true);
    keyboard->functionSelected("y1(");
    press("4 = =");
    EXPECT_EQ(history().back(), "y1(4) = 8");
    Model::m().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("3 * x")), true);
    EXPECT_EQ(history().back(), "y1(4) = 8"); // a later edit does not change a past result
    tap(2, false);
    press("=");
    EXPECT_EQ(history().back(), "(8) = 8");
    press("+ 1 / 3 =");
    EXPECT_EQ(history().back(), "ans+1/3 = 8.33333");
    Model::m().setDisplayDigits(3);
    EXPECT_EQ(history().back(), "ans+1/3 = 8.333"); // written in the present style
    for (int i = 0; i < 47; ++i) {
        press("1 =");
    }
    EXPECT_EQ(history().size(), 50U);
    EXPECT_EQ(history().front(), "y1(4) = 8"); // the 9 before it is gone
}

TEST_F(HistoryTest, aClearedHistoryComesBackForSixSeconds) {
    ManualTimerService timers;
    const TimerServiceScope timerScope(timers);
    open();
    press("clr clr clr");
    EXPECT_EQ(screen.undoSeconds, 0); // there was nothing to lose
    press("9 / 0 = 6 * 7 = clr clr clr");
    EXPECT_EQ(screen.undoSeconds, 6);
    EXPECT_EQ(history(), Texts{});
    press("1 =");
    timers.advance(5.9);
    keyboard->bringHistoryBack();
    EXPECT_EQ(history(), (Texts{"9/0 = Undefined", "6*7 = 42", "1 = 1"}));
    keyboard->bringHistoryBack();
    EXPECT_EQ(history().size(), 3U);
    press("clr clr clr");
    timers.advance(6.1);
    keyboard->bringHistoryBack();
    EXPECT_EQ(history(), Texts{});
}

TEST_F(HistoryTest, errorsAndAnEmptyHistoryShowThemselves) {
    open();
    const DisplayHistoryTableViewController& table = *keyboard->displayTableViewController();
    EXPECT_NE(table.hint(), "");
    type("1 Enter 2 + Enter 0 / 0 Enter");
    EXPECT_EQ(table.hint(), "");
    const auto colour = [&](int row) {
        return table.historyCell(row + table.nTipCells(), 320).outputLabel().textColor;
    };
    EXPECT_EQ(colour(0), Color::white(1));
    EXPECT_NE(colour(1), colour(0));
    EXPECT_EQ(colour(2), colour(1));
}

TEST_F(HistoryTest, theLineBeingTypedOutlivesTheScreen) {
    open();
    type("1 2 + 3 Left Left s i");
    keyboard = std::make_shared<KeyboardViewController>();
    EXPECT_EQ(keyboard->displayModel()->count(), 0);
    open();
    keyboard->takeUpHalfTypedLine();
    EXPECT_EQ(entry(), "12si_+3");
    type("n ( Escape");
    EXPECT_TRUE(Model::m().halfTypedLine().tokens.empty());
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
    EXPECT_EQ(cell.leftButton().frame, (Rect{0, 0, 80, 59}));
    EXPECT_EQ(cell.rightButton().frame, (Rect{240, 0, 80, 59}));
    cell.setRightButtonWidthMultiplier(2);
    cell.layout({320, 40});
    EXPECT_EQ(cell.rightButton().frame, (Rect{160, 0, 160, 40}));
    EXPECT_EQ(cell.outputLabel().fontSize, 600.0 / 38); // the product first, which rounds only once
}

} // namespace
} // namespace velmora::test
