#include "tests/calculator/CalculatorFixture.h"

#include "calculator/ButtonLayout.h"
#include "calculator/KeyboardGeometry.h"
#include "calculator/KeyboardLayoutStrings.h"

namespace velmora::test {
namespace {

class KeyboardLayoutTest : public KeyboardTest {
public:
    void openTablet(int entering, Orientation orientation, int displayMode, double width, double height) {
        device = PlainDevice(DeviceClass::Tablet, orientation);
        Model::m().setDisplayMode(displayMode);
        open(entering, nullptr, 0, width, height);
    }

    /// The keyboard as rows of titles, "·" where no key shows, told from the frames alone.
    Texts rows() {
        std::map<double, std::map<double, std::string>> byPlace;
        for (const auto& button : keyboard->keyboardView().buttonArray()) {
            const std::string title = button->isShown() ? button->titleString() : "·";
            byPlace[button->frame().y][button->frame().x] += title.empty() ? "√" : title;
        }
        Texts rows;
        for (const auto& [y, row] : byPlace) {
            std::string text;
            for (const auto& [x, title] : row) {
                text += (text.empty() ? "" : "|") + title;
            }
            rows.push_back(text);
        }
        return rows;
    }
    Rect frameOf(const std::string& title) { return key(title)->frame(); }
};

TEST_F(KeyboardLayoutTest, narrowKeyboards) {
    const Texts standard{"←|→|del|clr|√", "^|+|-|*|/",     "func|7|8|9|e E",
                         "cnst|4|5|6|π",  "trig|1|2|3|=)", "units|0|.|("};
    open();
    EXPECT_EQ(rows(), standard);

    Model::m().setWhichKeyboard(1);
    open();
    EXPECT_EQ(rows(), (Texts{"←|→|e E|√|/", "del|clr|π|^|*", "func|7|8|9|-", "cnst|4|5|6|+", "trig|1|2|3|=)",
                             "units|0|.|("}));
    Model::m().setWhichKeyboard(0);

    open(3, &Model::m().polarR());
    EXPECT_EQ(rows()[3], "cnst|4|5|6|π");
    open(4);
    EXPECT_EQ(rows(), (Texts{"←|→|del|clr|√", "^|+|-|*|/", "func|7|8|9|e E", "cnst|4|5|6|x π", "trig|1|2|3|y",
                             "units|0|.|(|save", "≥|>|≤|<"}));
    open(5, &Model::m().impliedFunctions());
    // Under the tall key of three rows lies one key, a blank; the last row begins one cell in.
    EXPECT_EQ(rows(), (Texts{"←|→|del|clr|√", "^|+|-|*|/", "func|7|8|9|e E", "cnst|4|5|6|π",
                             "trig|1|2|3|save", "units|0|.|(|·", "·|x|y"}));
}

TEST_F(KeyboardLayoutTest, keyOfPiCarriesTheVariable) {
    Model& model = Model::m();
    const struct {
        int entering;
        ExpressionList* target;
        const char* title;
    } cases[] = {{0, nullptr, "π"},
                 {1, &model.equations(), "x π"},
                 {1, &model.polarR(), "θ π"},
                 {1, &model.constants(), "π"},
                 {2, &model.parametricX(), "t π"},
                 {3, &model.polarR(), "π"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.title);
        open(c.entering, c.target);
        EXPECT_TRUE(key(c.title));
    }
}

TEST_F(KeyboardLayoutTest, wideKeyboards) {
    openTablet(0, Orientation::Portrait, 0, 768, 955);
    EXPECT_EQ(rows(), (Texts{"←|→|+|-|7|8|9|e E", "del|clr|*|/|4|5|6|π", "func|cnst|^|√|1|2|3|=)",
                             "trig|units|·|·|0|.|("}));
    openTablet(1, Orientation::LandscapeLeft, 1, 1024, 699);
    EXPECT_EQ(rows().back(), "trig|units|·|x|0|.|(");
    keyboard->setTarget(&Model::m().polarR());
    EXPECT_EQ(rows().back(), "trig|units|·|θ|0|.|(");
    keyboard->setTarget(&Model::m().constants());
    EXPECT_EQ(rows().back(), "trig|units|·|·|0|.|(");
    openTablet(2, Orientation::Portrait, 2, 768, 955);
    EXPECT_EQ(rows().back(), "trig|units|·|t|0|.|(");
    openTablet(4, Orientation::Portrait, 0, 768, 955);
    EXPECT_EQ(rows(), (Texts{"≥|←|→|+|-|7|8|9|e E", ">|del|clr|*|/|4|5|6|π", "≤|func|cnst|^|√|1|2|3|save",
                             "<|trig|units|x|y|0|.|("}));
    openTablet(5, Orientation::Portrait, 0, 768, 955);
    EXPECT_EQ(rows().back(), "trig|units|x|y|0|.|(");
}

TEST_F(KeyboardLayoutTest, imaginaryUnitSharesTheKeyOfThePoint) {
    Model::m().setIOnMainKeyboard(true);
    open();
    press("2 +");
    key(". i")->pressed();
    EXPECT_EQ(entry(), "2+.");
    key(". i")->pressed();
    EXPECT_EQ(entry(), "2+i");
    openTablet(0, Orientation::Portrait, 0, 768, 955);
    EXPECT_TRUE(key("."));
    EXPECT_EQ(rows().back(), "trig|units|·|·|0|.|("); // no key of its own on a wide keyboard either
}

TEST_F(KeyboardLayoutTest, framesOnAPhone) {
    // The grid is 312 by 256 points at (5, 232); its cells are cut to 62 by 42.
    open();
    EXPECT_EQ(keyboard->keyboardView().gridFrame(), (Rect{5, 232, 312, 256}));
    EXPECT_EQ(keyboard->keyboardView().buttonArray().size(), 29U);
    EXPECT_EQ(frameOf("←"), (Rect{6, 233, 60, 40}));
    EXPECT_EQ(frameOf("units"), (Rect{6, 443, 60, 40}));
    EXPECT_EQ(frameOf("("), (Rect{192, 443, 60, 40}));
    EXPECT_EQ(frameOf("="), (Rect{254, 401, 60, 82}));
    // Seven rows of 36.
    open(5, &Model::m().impliedFunctions());
    EXPECT_EQ(frameOf("x"), (Rect{130, 449, 60, 34}));
    EXPECT_EQ(frameOf("y"), (Rect{192, 449, 60, 34}));
    EXPECT_EQ(frameOf("="), (Rect{254, 377, 60, 106}));
}

TEST_F(KeyboardLayoutTest, framesOnATablet) {
    openTablet(0, Orientation::Portrait, 0, 768, 955);
    EXPECT_EQ(frameOf("←"), (Rect{11, 676, 84, 62}));
    EXPECT_EQ(frameOf("7"), (Rect{410, 676, 84, 62}));
    EXPECT_EQ(frameOf("="), (Rect{671, 806, 84, 127}));
    // With five columns at the left the grids are in proportion 5 to 4.
    openTablet(4, Orientation::Portrait, 0, 768, 955);
    EXPECT_EQ(frameOf("≥"), (Rect{11, 676, 74, 62}));
    EXPECT_NEAR(frameOf("7").x, 758 - 698.0 * 4 / 9 + 1, 1e-9);
}

TEST_F(KeyboardLayoutTest, entryLineByGeometryAndMode) {
    open();
    const KeyboardView* view = &keyboard->keyboardView();
    EXPECT_EQ(view->backingLabel().frame, (Rect{0, 208, 320, 20}));
    EXPECT_EQ(view->currentEntryLabel().record().frame, (Rect{10, 208, 300, 20}));
    EXPECT_EQ(view->currentEntryLabel().record().fontSize, 17);
    EXPECT_EQ(view->displayTableFrame(), (Rect{0, 0, 320, 208}));
    EXPECT_EQ(view->currentEntryLabel().record().alignment, TextAlignment::Right);

    open(1, &Model::m().equations());
    view = &keyboard->keyboardView();
    EXPECT_EQ(view->currentEntryLabel().record().frame, (Rect{15, 0, 290, 90}));
    EXPECT_EQ(view->currentEntryLabel().record().fontSize, 18);
    EXPECT_EQ(view->currentEntryLabel().record().lineCount, 4);
    EXPECT_EQ(view->currentEntryLabel().record().alignment, TextAlignment::Left);

    openTablet(0, Orientation::LandscapeRight, 1, 1024, 699);
    view = &keyboard->keyboardView();
    EXPECT_EQ(view->gridFrame(), (Rect{10, 331, 1004, 350}));
    EXPECT_EQ(view->backingLabel().frame, (Rect{0, 297, 1024, 30}));
    EXPECT_EQ(view->currentEntryLabel().record().fontSize, 24);
}

TEST_F(KeyboardLayoutTest, coloursAndFonts) {
    open();
    const struct {
        const char* title;
        const char* colour;
    } cases[] = {{"+", "a"}, {"7", "b"},    {".", "b"}, {"e", "b"},   {"(", "b"}, {"=", "c"},
                 {"π", "b"}, {"func", "f"}, {"←", "g"}, {"del", "g"}, {"", "s"},  {"units", "f"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.title);
        EXPECT_EQ(key(c.title)->appearance().colourClass, c.colour);
        EXPECT_EQ(key(c.title)->appearance().backgroundImageName, std::string("button") + c.colour);
        EXPECT_EQ(key(c.title)->appearance().fontSize, 20);
    }
    open(4);
    EXPECT_EQ(key("x π")->appearance().colourClass, "h");
    EXPECT_EQ(key("y")->appearance().colourClass, "h");
    EXPECT_EQ(key("≥")->appearance().colourClass, "j");
    openTablet(5, Orientation::Portrait, 1, 768, 955);
    EXPECT_EQ(key("y")->appearance().backgroundImageName, "buttonj@2x");
    EXPECT_EQ(key("π")->appearance().fontSize, 40);

    EXPECT_EQ(colourClass("q", 0), "a");
    EXPECT_TRUE(logHolds("Assertion failure"));
}

TEST_F(KeyboardLayoutTest, unknownGeometriesAndModesHaveNoKeys) {
    EXPECT_EQ(keyboardLayoutString(5, 0, 0), "");
    EXPECT_EQ(keyboardLayoutString(0, 6, 0), "");
    EXPECT_EQ(keyboardLayoutString(4, -1, 0), "");
    open(6);
    EXPECT_TRUE(keyboard->keyboardView().buttonArray().empty());
    EXPECT_FALSE(keyboard->hardwareKey("Enter")); // and no tall key to press
}

TEST_F(KeyboardLayoutTest, rotationAndSettingsRebuildTheKeys) {
    openTablet(0, Orientation::Portrait, 1, 768, 955);
    press("( 2");
    const int reloads = screen.reloads;
    device.setStatusBarOrientation(Orientation::LandscapeLeft);
    keyboard->willAnimateRotation(Orientation::LandscapeLeft);
    keyboard->keyboardView().setSize(1024, 699);
    keyboard->didRotate(Orientation::Portrait);
    EXPECT_EQ(rows().front(), "←|→|+|-|7|8|9|e E");
    EXPECT_EQ(key("=")->titleString(), ")"); // the line and the tall key's face survive
    EXPECT_GT(screen.reloads, reloads);

    device = PlainDevice(DeviceClass::Phone); // a window made small
    keyboard->keyboardView().setSize(320, 499);
    EXPECT_EQ(rows().front(), "←|→|del|clr|√");

    const int keyChanges = screen.keyChanges;
    keyboard->viewWillAppear(false);
    EXPECT_EQ(screen.keyChanges, keyChanges); // nothing has changed
    Model::m().setLargeFontsOnPhone(true);
    keyboard->viewWillAppear(false);
    EXPECT_EQ(key("7")->appearance().fontSize, 23);
}

TEST(ButtonGridTest, doubleKeyInTheLowerLeft) {
    ButtonGrid grid({0, 0, 100, 60}, 4, 3, 4.9, 6.9);
    grid.setDoubleButtonInLowerLeft(true);
    EXPECT_EQ(grid.nButtons(), 11);
    EXPECT_EQ(grid.frameForButtonAtIndex(0), (Rect{3, 2, 19, 16})); // gaps cut to 4 and 6
    EXPECT_EQ(grid.frameForButtonAtIndex(8), (Rect{3, 42, 44, 16}));
    EXPECT_EQ(grid.frameForButtonAtIndex(9), (Rect{53, 42, 19, 16}));
    EXPECT_EQ(grid.frameForButtonAtIndex(10), (Rect{78, 42, 19, 16}));
}

} // namespace
} // namespace velmora::test
