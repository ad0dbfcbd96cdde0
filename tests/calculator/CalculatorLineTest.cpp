#include "tests/calculator/CalculatorFixture.h"

namespace velmora::test {
namespace {

using CalculatorLineTest = KeyboardTest;

struct EntryCase {
    const char* keys;
    const char* entry;
};

TEST_F(CalculatorLineTest, keysEditTheLine) {
    const EntryCase cases[] = {
        {"1 2 . 5", "12.5"},     {"1 2 ←", "1_2"},
        {"1 2 ← ← ← 3", "3_12"},                 // the cursor stops at the start
        {"1 2 ← → → 3", "123"},                  // and at the end
        {"1 2 3 ← del", "1_3"},  {"del 4", "4"}, // nothing to delete
        {"sqrt 9", "sqrt(9"},    {"- 5", "-5"},  // a negative number, not the last answer
        {"+ 1", "ans+1"},        {"* 2", "ans*2"},
        {"^ 2", "ans^2"},        {"5 ← + ", "+_5"},    // the line is not empty
        {"7 clr / 2", "ans/2"},  {"+ del del 8", "8"}, // "ans" is one token
        {"2 e", "2e"},           {"2 e e", "2E"},
        {"2 e e e", "2Ee"},                           // the titles wrap without taking anything back
        {"2 e e e e", "2EE"},    {"2 e 3 e", "2e3e"}, // another key in between starts anew
        {"2 e ← e", "2e_e"}};
    for (const EntryCase& c : cases) {
        SCOPED_TRACE(c.keys);
        Model::resetForTests();
        open();
        press(c.keys);
        EXPECT_EQ(entry(), c.entry);
    }
}

TEST_F(CalculatorLineTest, tallKeyClosesParenthesesThenEvaluates) {
    open();
    press("2 * ( 3 + 4");
    EXPECT_EQ(key("=")->titleString(), ")");
    press("=");
    EXPECT_EQ(entry(), "2*(3+4)");
    press("^ 2 =");
    EXPECT_EQ(entry(), "");
    EXPECT_EQ(history(), Texts{"2*(3+4)^2 = 98"});
    EXPECT_GE(screen.scrolls, 1);
    EXPECT_EQ(screen.animatedScrolls, 0);
    press("+ 1 =");
    EXPECT_EQ(history().back(), "ans+1 = 99");
}

TEST_F(CalculatorLineTest, tallKeyFace) {
    const struct {
        const char* keys;
        const char* title;
        const char* image;
        const char* spoken;
    } cases[] = {{"", "=)", "buttonc", "equals"},
                 {"1", "=", "buttonc", "equals"},
                 {"( 2 + 3", ")", "buttonBTall", "right parenthesis"},
                 {"( 2 + 3 =", "=", "buttonc", "equals"},
                 {"sqrt ( 2 =", ")", "buttonBTall", "right parenthesis"},
                 {"( clr", "=)", "buttonc", "equals"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.keys);
        open();
        press(c.keys);
        EXPECT_EQ(key("=")->titleString(), c.title);
        EXPECT_EQ(key("=")->appearance().backgroundImageName, c.image);
        EXPECT_EQ(key("=")->appearance().accessibleName, c.spoken);
    }
}

TEST_F(CalculatorLineTest, emptyLineIsNotEvaluated) {
    open();
    press("= =");
    EXPECT_EQ(history(), Texts{});
}

TEST_F(CalculatorLineTest, errorsEnterTheHistory) {
    open();
    press("2 + = 1 / 0 =");
    EXPECT_EQ(history(), (Texts{"2+ = Unable to parse", "1/0 = Undefined"}));
    EXPECT_TRUE(alerts.alerts().empty());
}

TEST_F(CalculatorLineTest, ansHoldsItsValue) {
    open();
    press("+ 4 = 1 / 3 = * 3 = 5 =");
    EXPECT_EQ(history(), (Texts{"ans+4 = 4", "1/3 = 0.33333", "ans*3 = 1", "5 = 5"}));
}

TEST_F(CalculatorLineTest, threeClearsInARowEraseTheHistory) {
    const struct {
        const char* keys;
        std::size_t rows;
        int nClears;
    } cases[] = {{"clr clr", 1, 2},
                 {"clr clr clr", 0, 0},
                 {"clr 5 clr clr", 1, 2},
                 {"clr clr ← clr clr", 1, 2},
                 {"clr clr = clr", 1, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.keys);
        Model::resetForTests();
        open();
        press("8 =");
        press(c.keys);
        EXPECT_EQ(history().size(), c.rows);
        EXPECT_EQ(keyboard->nClears(), c.nClears);
        EXPECT_EQ(entry(), "");
    }
}

TEST_F(CalculatorLineTest, otherChangesEndPressAndClearCounts) {
    const struct {
        const char* what;
        void (*change)(KeyboardViewController&);
    } changes[] = {{"row tapped",
                    [](KeyboardViewController& k) {
                        k.displayTableViewController()->historyCell(1, 320).buttonPressed(true);
                    }},
                   {"choice from a list", [](KeyboardViewController& k) { k.functionSelected("sin("); }},
                   {"number entered", [](KeyboardViewController& k) { k.numberEntered(2.0); }},
                   {"cursor tap", [](KeyboardViewController& k) { k.cursorTappedAt(9); }},
                   {"hardware key", [](KeyboardViewController& k) { k.hardwareKey("7"); }},
                   {"hardware cursor", [](KeyboardViewController& k) { k.hardwareKey("Home"); }},
                   {"cut", [](KeyboardViewController& k) { k.keyboardView().currentEntryLabel().cut(); }}};
    for (const auto& c : changes) {
        SCOPED_TRACE(c.what);
        Model::resetForTests();
        open();
        press("6 = clr clr");
        c.change(*keyboard);
        press("clr");
        EXPECT_EQ(history().size(), 1U);
        press("clr clr");
        EXPECT_EQ(history().size(), 0U);

        press("3 = e");
        c.change(*keyboard);
        const int before = keyboard->displayModel()->count();
        press("e");
        EXPECT_EQ(keyboard->displayModel()->count(), before + 1); // a further "e", nothing taken back
    }
}

TEST_F(CalculatorLineTest, historyKeepsTheNewestFifty) {
    open();
    for (int i = 0; i < 51; ++i) {
        press("1 + 1 =");
        press(i == 0 ? "9 =" : "clr");
    }
    EXPECT_EQ(history().size(), 50U);
    EXPECT_EQ(history().front(), "1+1 = 2"); // the first line and the 9 after it are gone
    press("4 =");
    EXPECT_EQ(history().size(), 50U);
    EXPECT_EQ(history().back(), "4 = 4");
}

TEST_F(CalculatorLineTest, clickSoundsWithEachKeyWhileOn) {
    open();
    press("1");
    EXPECT_TRUE(sounds.played().empty());
    Model::m().setSoundIsOn(true);
    press("2 +");
    keyboard->hardwareKey("3");
    ASSERT_EQ(sounds.played().size(), 3U);
    EXPECT_EQ(sounds.played()[0], (RecordingSoundPlayer::Play{"click", 0.3}));
}

TEST_F(CalculatorLineTest, longLineKeepsTheCursorInView) {
    open(); // 300 points wide, 10.2 points a character: 29 fit
    for (int i = 0; i < 30; ++i) {
        press("1");
    }
    for (int i = 0; i < 10; ++i) {
        press("2");
    }
    const std::string ones(30, '1');
    EXPECT_EQ(entry(), ones + "2222222222");
    press("← ←");
    EXPECT_EQ(entry(), ones + "22222222"); // the text up to the cursor, which is too wide itself
    for (int i = 0; i < 10; ++i) {
        press("←");
    }
    EXPECT_EQ(entry(), std::string(28, '1') + "_112222222222"); // this much fits before the cursor
}

} // namespace
} // namespace velmora::test
