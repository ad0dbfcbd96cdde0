#include "tests/calculator/CalculatorFixture.h"

#include "platform/text/Utf8.h"

namespace velmora::test {
namespace {

using HardwareKeysTest = KeyboardTest;

TEST_F(HardwareKeysTest, keysEditTheLineLikeThoseOnScreen) {
    const std::pair<const char*, const char*> cases[] = {
        {"1 2 + 3 Backspace 4", "12+4"},
        {"+ 1", "ans+1"},
        {"1 ) ,", "1),"},
        {"2 × 3 ÷ 4 − 1", "2*3/4-1"},
        {"2 E 3", "2E3"},
        {"p i π i 2", "ππi2"},
        {"e e", "ee"}, // typed letters never turn into another title
        {"1 2 3 Home 4", "4_123"},
        {"1 2 3 Home Delete End 4", "234"},
        {"1 2 Left Right Right 3 Delete", "123"},
        {"( 2 = + 1", "(2)+1"},
        {"( 2 + 3 Enter Enter", "(2+3) = 5; "}, // both are the tall key
        {"7 Enter 5 Escape", "7 = 7; "}};
    for (const auto& [keys, result] : cases) {
        SCOPED_TRACE(keys);
        Model::resetForTests();
        open();
        type(keys);
        EXPECT_EQ(shown(), result);
    }
    type("8 Escape Escape Escape Escape"); // empties the line, never the history
    press("clr clr");
    EXPECT_EQ(history(), Texts{"7 = 7"});
}

TEST_F(HardwareKeysTest, charactersOfOtherKeyboards) {
    const std::pair<const char*, const char*> cases[] = {
        {"1 7 0 !", "fact(170)"},
        {"2 + 3 . 5 E - 2 !", "2+fact(3.5E-2)"},
        {"( 2 + 3 ) ! !", "fact(fact((2+3)))"},
        {"- s i n ( 2 ) !", "-fact(sin(2))"},
        {"4 Enter ! * 2", "4 = 4; fact(ans)*2"},
        {"2 + ! Enter", "2+!"}, // nothing before it: it waits, and so does Enter
        {"1 ) !", "1)!"},
        {"√ ( 9", "sqrt((9"},
        {"e ² + 2 ³", "e^2+2^3"},
        {"7 Enter ²", "7 = 7; ans^2"},
        {"3 ² 4 Enter", "3^2*4 = 36; "}, // the exponent is over
        {"5 % Enter + 3 Enter", "5%+3"},
        {"5 % Backspace Enter", "5 = 5; "},
        {"3 $ × 2 ! Enter", "3$*2!"},
        {"< 2 Enter", "<2"}};
    for (const auto& [keys, result] : cases) {
        SCOPED_TRACE(keys);
        Model::resetForTests();
        open();
        type(keys);
        EXPECT_EQ(shown(), result);
    }
    open();
    for (const char* key : {"2", " ", "+", " ", "3", "Enter", "1", " ", "2", "Enter"}) {
        keyboard->hardwareKey(key);
    }
    EXPECT_EQ(entry(), "1 2"); // never twelve
    EXPECT_NE(screen.notice.find("blank"), std::string::npos);
}

TEST_F(HardwareKeysTest, editsAreTakenBackAndMadeAgain) {
    open();
    type("1 2 s i n ( 3");
    const char* const before[] = {"12sin(", "12sin", "12si", "12s", "12", "1", "", ""};
    for (const char* line : before) {
        keyboard->undo();
        EXPECT_EQ(entry(), line);
    }
    EXPECT_EQ(screen.notice, "There is nothing to undo in this line.");
    for (int i = 0; i < 20; ++i) {
        keyboard->redo();
    }
    EXPECT_EQ(entry(), "12sin(3");
    keyboard->keyboardView().buttonWithCharacter("e")->pressed();
    keyboard->keyboardView().buttonWithCharacter("e")->pressed();
    EXPECT_EQ(entry(), "12sin(3E"); // one press, one step, though it took the "e" back
    keyboard->undo();
    EXPECT_EQ(entry(), "12sin(3e");
    type("Home Delete 9 Escape");
    keyboard->undo();
    EXPECT_EQ(entry(), "9_2sin(3e");
    keyboard->undo();
    keyboard->redo();
    EXPECT_EQ(entry(), "9_2sin(3e");
    type("Enter Enter"); // another line
    keyboard->undo();
    EXPECT_EQ(entry(), "");
    for (int i = 0; i < 150; ++i) {
        type("7");
    }
    for (int i = 0; i < 149; ++i) {
        keyboard->undo();
    }
    EXPECT_EQ(entry(), "7");
}

TEST_F(HardwareKeysTest, earlierLinesComeBackForEditing) {
    open();
    type("Up 1 + 1 Enter 2 * 3 Enter 8 s");
    const std::pair<const char*, const char*> cases[] = {{"Up", "2*3"},
                                                         {"Up", "1+1"},
                                                         {"Up", "1+1"},
                                                         {"Down", "2*3"},
                                                         {"Down", "8s"},
                                                         {"Down", "8s"},
                                                         {"Up Backspace 4 Enter Up", "2*4"},
                                                         {"Up", "2*3"}};
    for (const auto& [keys, line] : cases) {
        type(keys);
        EXPECT_EQ(entry(), line) << keys;
    }
    EXPECT_EQ(history(), (Texts{"1+1 = 2", "2*3 = 6", "2*4 = 8"}));
    press("clr clr clr");
    type("Down 5");
    EXPECT_EQ(entry(), "5");
    open(1, &Model::m().equations());
    EXPECT_FALSE(keyboard->hardwareKey("Up"));
}

/// What a person types on a hardware keyboard, and the tokens that the line holds then, with blanks
/// between; letters still being typed come behind.
struct TypedCase {
    int entering;
    const char* typed;
    const char* tokens;
    const char* pending;
    const char* notice; // a part of it, or empty
};

TEST_F(HardwareKeysTest, lettersBecomeTheNamesTheySpell) {
    Model& model = Model::m();
    model.constants().setNameAtIndex(1, "mass");
    model.constants().setExpressionAtIndex(1, ExpressionWithTokenArray(tokens("5")), false);
    ExpressionList* const targets[] = {
        nullptr, &model.equations(),       &model.parametricY(), &model.polarR(),
        nullptr, &model.impliedFunctions()};
    const TypedCase cases[] = {
        {0, "sin", "", "sin", ""},
        {0, "2asin(3", "2 asin( 3", "", ""},
        {0, "SQRT(2)+Im(i)", "sqrt( 2 ) + Im( i )", "", ""},
        {0, "xsin(", "", "xsin(", "“x” is no variable here. This line has none."},
        {1, "xsin(x", "x sin( x", "", ""},
        {1, "xx^x", "x x ^ x", "", ""},
        {1, "y1(x", "y1( x", "", ""},
        {1, "ty<≥", "", "ty<≥", "“t” is no variable here. This editor has “x”."},
        {1, "2theta+1", "2", "theta+1", "“theta” is no variable here. This editor has “x”."},
        {2, "t+tanh(t", "t + tanh(", "t", ""},
        {3, "θcos(θ", "θ cos( θ", "", ""},
        {3, "2Theta*thetatan(t", "2 θ * θ tan(", "t", ""},
        {3, "t+", "", "t+", "“t” is no variable here. This editor has “θ”."},
        {4, "xy<", "x y", "", ""},
        {5, "x(y+e2", "x ( y + e 2", "", ""}, // what could have begun "y1(" and "erf("
        {5, "xt", "x", "t", ""},              // may become "tan("
        {5, "xt+", "x", "t+", "“t” is no variable here. This editor has “x” and “y”."},
        {0, "pi/piei", "π / π", "ei", ""},
        {0, "2mass", "2 @k2", "", ""},
        {0, "2E-3", "2 E - 3", "", ""},
        {0, "ISADensityKgM3(1", "ISADensityKgM3( 1", "", ""},
        {0, "lo+g(7", "", "lo+g(7", "begins with “lo+g(7”"},
        {0, "2qé", "2", "qé", "begins with “qé”"},
        {0, "7%", "7", "%", "“%” cannot be read here."},
        {0, "sinq(", "", "sinq(", "begins with “sinq(”"}};
    for (const TypedCase& c : cases) {
        SCOPED_TRACE(c.typed);
        screen.notice.clear();
        open(c.entering, targets[c.entering]);
        for (const std::string& character : splitCodePoints(c.typed)) {
            keyboard->hardwareKey(character);
        }
        std::string line;
        for (const TokenElement& element : keyboard->displayModel()->tokenArray()) {
            line += (line.empty() ? "" : " ") + (element.token() ? element.token()->description() : "ans");
        }
        EXPECT_EQ(line, c.tokens);
        EXPECT_EQ(keyboard->typedName(), c.pending);
        EXPECT_TRUE(screen.notice.find(c.notice) != std::string::npos &&
                    screen.notice.empty() == std::string(c.notice).empty())
            << screen.notice;
    }
}

TEST_F(HardwareKeysTest, lettersStandAtTheCursorAndAreEditedLikeKeys) {
    open();
    type("4 Enter 1 2 Left s");
    EXPECT_EQ(entry(), "1s_2");
    press("7"); // only the start of a name: refused, and nothing is lost
    EXPECT_EQ(entry(), "1s_2");
    type("i Backspace");
    EXPECT_EQ(entry(), "1s_2");
    type("i n");
    press("(");
    EXPECT_EQ(entry(), "1sin(_2");
    type("End e");
    press("+");
    EXPECT_EQ(entry(), "1sin(2e+");
    type("a n s Escape a n s * i Enter");
    EXPECT_EQ(history(), (Texts{"4 = 4", "ans*i = 4i"}));
    type("c o");
    press("del clr");
    EXPECT_EQ(entry(), "");
    type("e"); // may begin "erf(", until a row is tapped
    keyboard->displayTableViewController()->historyCell(1, 320).buttonPressed(true);
    EXPECT_EQ(entry(), "e4");
}

TEST_F(HardwareKeysTest, aLongLineShowsItsCursor) {
    open(); // 300 points hold 29 characters of 10.2
    keyboard->displayModel()->setTokenArray(TokenArray(60, Token("7")));
    const KeyboardView& view = keyboard->keyboardView();
    const std::pair<const char*, std::string> cases[] = {
        {"End", std::string(60, '7')},
        {"Home", "_" + std::string(27, '7') + "…"},
        {"Right Right", "77_" + std::string(25, '7') + "…"},
        {"End Left", std::string(59, '7')}}; // cut at the cursor and at its head
    for (const auto& [keys, line] : cases) {
        type(keys);
        EXPECT_EQ(view.currentEntryLines(), line) << keys;
        EXPECT_EQ(view.isCursorAtEndOfEntry(), line.find('_') == std::string::npos);
    }
    type("Home");
    keyboard->entryLineTapped({310 - 29 * 10.2 + 3 * 10.2, 215});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 2);
}

TEST_F(HardwareKeysTest, theSignOfTheAngleModeGivesWayToTheLine) {
    open();
    const LabelRecord& sign = keyboard->keyboardView().angleSign();
    EXPECT_EQ(sign.text, "RAD");
    keyboard->switchAngleMode();
    EXPECT_EQ(sign.text, "DEG");
    EXPECT_EQ(screen.notice, "Angles are in degrees.");
    type("s i n ( 3 0 Enter Enter");
    EXPECT_EQ(history(), Texts{"sin(30) = 0.5"});
    // 300 points less 8 and three characters of 6.6 hold 26 characters.
    for (int count = 1; count <= 30; ++count) {
        type("1");
        EXPECT_EQ(sign.hidden, count > 26) << count;
    }
    open(1, &Model::m().equations());
    const LabelRecord& inEditor = keyboard->keyboardView().angleSign();
    EXPECT_FALSE(inEditor.hidden);
    keyboard->displayModel()->setTokenArray(TokenArray(98, Token("1"))); // four full lines
    keyboard->updateDisplay();
    EXPECT_TRUE(inEditor.hidden);
}

TEST_F(HardwareKeysTest, tapMovesTheCursorToTheNearestGap) {
    // Characters are 10.2 points wide; the line ends at x = 310.
    open();
    keyboard->functionSelected("sin(");
    press("1 2");
    const std::pair<double, const char*> cases[] = {
        {309, "sin(12"}, {301, "sin(1_2"}, {280, "sin(_12"}, {200, "_sin(12"}, {262, "_sin(12"}};
    for (const auto& [x, line] : cases) {
        keyboard->cursorTappedAt(99);
        EXPECT_EQ(entry(), "sin(12");
        keyboard->entryLineTapped({x, 215});
        EXPECT_EQ(entry(), line) << x;
    }
    keyboard->cursorTappedAt(-3);
    EXPECT_EQ(entry(), "_sin(12");

    // 290 points from x = 15 hold 26 characters of 10.8; "y1(x)=" takes 6 of the first line.
    open(1, &Model::m().equations());
    keyboard->displayModel()->setTokenArray(TokenArray(30, Token("1")));
    keyboard->updateDisplay();
    // Two lines of 21.6 points, centred in 90: they begin at 23.4 and 45.
    keyboard->entryLineTapped({15 + 8 * 10.8, 30});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 2);
    keyboard->cursorTappedAt(99);
    keyboard->entryLineTapped({15 + 3 * 10.8 + 1, 60});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 23);
    keyboard->cursorTappedAt(99);
    keyboard->entryLineTapped({15, 60}); // where the line breaks, from its second line
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 20);
    EXPECT_EQ(keyboard->keyboardView().currentEntryLines(),
              "y1(x)=" + std::string(20, '1') + "\n_1111111111");

    // A line breaks behind a blank where it can: the heights begin a line of their own.
    open(5, &Model::m().impliedFunctions());
    keyboard->displayModel()->setTokenArray(TokenArray(25, Token("y")));
    keyboard->updateDisplay();
    EXPECT_EQ(keyboard->keyboardView().currentEntryLines(), std::string(25, 'y') + "= \n0");
    keyboard->entryLineTapped({200, 60});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 25);

    // Names are not torn apart.
    open(1, &Model::m().equations());
    keyboard->displayModel()->setTokenArray(tokens("1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 sqrt( x"));
    keyboard->updateDisplay();
    EXPECT_EQ(keyboard->keyboardView().currentEntryLines(), "y1(x)=12345678901234567\nsqrt(x");

    // The line of inequalities is as high as one line of text, which is that of the cursor.
    open(4);
    keyboard->displayModel()->setTokenArray(TokenArray(60, Token("y")));
    keyboard->updateDisplay();
    EXPECT_EQ(keyboard->keyboardView().currentEntryLines(), std::string(60 - 2 * 28, 'y'));
    keyboard->cursorTappedAt(30);
    EXPECT_EQ(keyboard->keyboardView().currentEntryLines(), "yy_" + std::string(25, 'y'));
    keyboard->entryLineTapped({15 + 10.2 * 5, 10});
    EXPECT_EQ(keyboard->displayModel()->cursorPosition(), 32);
}

} // namespace
} // namespace velmora::test
