#include "tests/calculator/CalculatorFixture.h"

namespace velmora::test {
namespace {

using CalculatorLineTest = KeyboardTest;

TEST_F(CalculatorLineTest, keysEditAndEvaluateTheLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"1 2 . 5", "12.5"},
        {"1 2 ←", "1_2"},
        {"1 2 3 ← del", "1_3"},
        {"sqrt 9", "sqrt(9"},
        {"1 2 ← ← ← 3", "3_12"},
        {"1 2 ← → → 3", "123"},
        {"del 4", "4"}, // no further than the ends
        {"* 2", "ans*2"},
        {"^ 2", "ans^2"},
        {"7 clr / 2", "ans/2"},
        {"+ del del 8", "8"},
        {"- 5", "-5"},
        {"5 ← + ", "+_5"}, // a negative number; a line that is not empty
        {"2 e e", "2E"},
        {"2 e 3 e", "2e3e"},
        {"2 e ← e", "2e_e"},
        {"2 e e e", "2Ee"},
        {"2 e e e e", "2EE"}, // the titles wrap without taking anything back
        {"= =", ""},
        {"2 * ( 3 + 4 =", "2*(3+4)"},
        {"2 * ( 3 + 4 = ^ 2 = + 1 =", "2*(3+4)^2 = 98; ans+1 = 99; "},
        {"2 + = 1 / 0 =", "2+ = Unable to parse; 1/0 = Undefined; "},
        {"+ 4 = 1 / 3 = * 3 = 5 =", "ans+4 = 4; 1/3 = 0.33333; ans*3 = 1; 5 = 5; "}};
    for (const auto& [keys, result] : cases) {
        SCOPED_TRACE(keys);
        Model::resetForTests();
        open();
        screen = {};
        press(keys);
        EXPECT_EQ(shown(), result);
        EXPECT_EQ(screen.scrolls > 0, !history().empty());
        EXPECT_EQ(screen.animatedScrolls, 0);
    }
    EXPECT_TRUE(alerts.alerts().empty());
}

TEST_F(CalculatorLineTest, tallKeyFace) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "=)"}, {"1", "="}, {"( 2 + 3", ")"}, {"( 2 + 3 =", "="}, {"sqrt ( 2 =", ")"}, {"( clr", "=)"}};
    for (const auto& [keys, title] : cases) {
        SCOPED_TRACE(keys);
        open();
        press(keys);
        const bool closes = key("=")->titleString() == ")";
        EXPECT_EQ(key("=")->titleString(), title);
        EXPECT_EQ(key("=")->appearance().backgroundImageName, closes ? "buttonBTall" : "buttonc");
        EXPECT_EQ(key("=")->appearance().accessibleName, closes ? "right parenthesis" : "equals");
    }
}

TEST_F(CalculatorLineTest, threeClearsInARowEraseTheHistory) {
    const std::pair<const char*, std::size_t> cases[] = {{"clr clr", 1},       {"clr clr clr", 0},
                                                         {"clr 5 clr clr", 1}, {"clr clr ← clr clr", 1},
                                                         {"clr clr = clr", 1}, {"clr 5 clr clr clr", 0}};
    for (const auto& [keys, rows] : cases) {
        SCOPED_TRACE(keys);
        Model::resetForTests();
        open();
        press("8 =");
        press(keys);
        EXPECT_EQ(history().size(), rows);
        EXPECT_EQ(entry(), "");
    }
}

TEST_F(CalculatorLineTest, otherChangesEndPressAndClearCounts) {
    void (*const changes[])(KeyboardViewController&) = {
        [](auto& k) { k.displayTableViewController()->historyCell(1, 320).buttonPressed(true); },
        [](auto& k) { k.functionSelected("sin("); },
        [](auto& k) { k.numberEntered(2.0); },
        [](auto& k) { k.cursorTappedAt(9); },
        [](auto& k) { k.hardwareKey("7"); },
        [](auto& k) { k.hardwareKey("Home"); },
        [](auto& k) { k.keyboardView().currentEntryLabel().cut(); }};
    for (const auto& change : changes) {
        SCOPED_TRACE(&change - changes);
        Model::resetForTests();
        open();
        press("6 = clr clr");
        change(*keyboard);
        press("clr");
        EXPECT_EQ(history().size(), 1U);
        press("clr clr");
        EXPECT_EQ(history().size(), 0U);

        press("3 = e");
        change(*keyboard);
        const int before = keyboard->displayModel()->count();
        press("e");
        EXPECT_EQ(keyboard->displayModel()->count(), before + 1); // a further "e", nothing taken back
    }
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
    keyboard->displayModel()->setTokenArray(TokenArray(30, Token("1")));
    press("2 2 2 2 2 2 2 2 2 2");
    EXPECT_EQ(entry(), std::string(30, '1') + "2222222222");
    press("← ←");
    EXPECT_EQ(entry(), std::string(30, '1') + "22222222"); // up to the cursor, which is too wide itself
    press("← ← ← ← ← ← ← ← ← ←");
    EXPECT_EQ(entry(), std::string(28, '1') + "_112222222222"); // this much fits before the cursor
}

} // namespace
} // namespace velmora::test
