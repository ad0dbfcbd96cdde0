#include "tests/calculator/CalculatorFixture.h"

#include "platform/Utf8.h"

namespace velmora::test {
namespace {

using HardwareKeysTest = KeyboardTest;

TEST_F(HardwareKeysTest, keysEditTheLineLikeThoseOnScreen) {
    const struct {
        const char* keys;
        const char* entry;
    } cases[] = {
        {"1 2 + 3 Backspace 4", "12+4"},
        {"+ 1", "ans+1"},
        {"( 2 )", "(2)"},
        {"1 ) ,", "1),"},
        {"( 2 = + 1", "(2)+1"}, // "=" is the tall key
        {"2 × 3 ÷ 4 − 1", "2*3/4-1"},
        {"e e", "ee"}, // typed letters never turn into another title
        {"2 E 3", "2E3"},
        {"p π i", "ππi"},
        {"1 2 3 Home 4", "4_123"},
        {"1 2 3 Home Delete End 4", "234"},
        {"1 2 Left Right Right 3 Delete", "123"},
        {"5 Escape", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.keys);
        open();
        type(c.keys);
        EXPECT_EQ(entry(), c.entry);
    }
}

TEST_F(HardwareKeysTest, enterClosesTheParenthesisFirst) {
    open();
    type("( 2 + 3 Enter");
    EXPECT_EQ(entry(), "(2+3)");
    type("Enter");
    EXPECT_EQ(history(), Texts{"(2+3) = 5"});
}

TEST_F(HardwareKeysTest, escapeAndTheClearKeyCountTogether) {
    open();
    type("5 Enter Escape");
    press("clr");
    type("Escape");
    EXPECT_EQ(history(), Texts{});
}

TEST_F(HardwareKeysTest, onlyDefinedVariablesAndSignsAreTyped) {
    Model& model = Model::m();
    const struct {
        int entering;
        ExpressionList* target;
        const char* typed;
        const char* ignored;
    } cases[] = {
        {0, nullptr, "", "xytθ<≥q"},           {1, &model.equations(), "x", "ytθ<"},
        {1, &model.polarR(), "θ", "xyt"},      {1, &model.constants(), "", "xytθ"},
        {2, &model.parametricY(), "t", "xyθ"}, {5, &model.impliedFunctions(), "xy", "tθ>"},
        {4, nullptr, "xy<>≥≤", "tθ"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entering);
        open(c.entering, c.target);
        const std::string before = entry();
        for (const std::string& letter : splitCodePoints(c.ignored)) {
            EXPECT_FALSE(keyboard->hardwareKey(letter)) << letter;
        }
        EXPECT_EQ(entry(), before);
        for (const std::string& letter : splitCodePoints(c.typed)) {
            EXPECT_TRUE(keyboard->hardwareKey(letter)) << letter;
        }
    }
    EXPECT_EQ(entry(), "xy≤0");
}

TEST_F(HardwareKeysTest, typedVariableIsNotReplacedByPi) {
    open(1, &Model::m().equations());
    type("x x");
    EXPECT_EQ(entry(), "y1(x)=xx");
    key("x π")->pressed();
    key("x π")->pressed();
    EXPECT_EQ(entry(), "y1(x)=xxπ");
}

TEST_F(HardwareKeysTest, tapMovesTheCursorToTheNearestGap) {
    // Characters are 10.2 points wide; the line ends at x = 310.
    open();
    keyboard->functionSelected("sin(");
    press("1 2");
    const struct {
        double x;
        const char* entry;
    } cases[] = {
        {309, "sin(12"}, {301, "sin(1_2"}, {280, "sin(_12"}, {200, "_sin(12"}, {262, "_sin(12"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.x);
        keyboard->cursorTappedAt(99);
        EXPECT_EQ(entry(), "sin(12");
        keyboard->entryLineTapped({c.x, 215});
        EXPECT_EQ(entry(), c.entry);
    }
    keyboard->cursorTappedAt(-3);
    EXPECT_EQ(entry(), "_sin(12");
}

TEST_F(HardwareKeysTest, tapInAWrappedLine) {
    // 290 points from x = 15 hold 26 characters of 10.8; "y1(x)=" takes 6 of the first line.
    open(1, &Model::m().equations());
    for (int i = 0; i < 30; ++i) {
        press("1");
    }
    // Two lines of 21.6 points, centred in 90: they begin at 23.4 and 45.
    keyboard->entryLineTapped({15 + 8 * 10.8, 30});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 2);
    keyboard->cursorTappedAt(99);
    keyboard->entryLineTapped({15 + 3 * 10.8 + 1, 60});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 23);
}

} // namespace
} // namespace velmora::test
