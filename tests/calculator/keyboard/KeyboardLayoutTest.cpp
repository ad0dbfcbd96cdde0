#include "tests/calculator/CalculatorFixture.h"

#include "calculator/keyboard/ButtonLayout.h"
#include "calculator/keyboard/EditingMode.h"
#include "calculator/keyboard/KeyboardLayoutStrings.h"
#include "calculator/model/KeyboardGeometry.h"

namespace velmora::test {
namespace {

class KeyboardLayoutTest : public KeyboardTest {
public:
    /// Opens a mode on a view of the usual size of a geometry.
    void openOn(int geometry, int entering, ExpressionList* target = nullptr) {
        using enum DeviceClass;
        using enum Orientation;
        device = PlainDevice(geometry < 3 ? Tablet : Phone, geometry == 2 ? LandscapeLeft : Portrait);
        Model::m().setDisplayMode(geometry == 0 ? 2 : 1);
        Model::m().setLargeFontsOnPhone(geometry == 3);
        const Size sizes[] = {{768, 955}, {768, 955}, {1024, 699}, {320, 499}, {320, 499}};
        open(entering, target, 0, sizes[geometry].width, sizes[geometry].height);
    }

    /// The keyboard as rows of titles, "·" where no key shows, told from the frames alone.
    std::string rows() {
        std::map<double, std::map<double, std::string>> byPlace;
        for (const auto& button : keyboard->keyboardView().buttonArray()) {
            const std::string title = button->isShown() ? button->titleString() : "·";
            byPlace[button->frame().y][button->frame().x] += title.empty() ? "√" : title;
        }
        std::string rows;
        for (const auto& [y, row] : byPlace) {
            for (const auto& [x, title] : row) {
                rows += (x == row.begin()->first ? "" : "|") + title;
            }
            rows += "; ";
        }
        return rows;
    }
};

TEST_F(KeyboardLayoutTest, keysStandInTheirPlaces) {
    const struct {
        int geometry, entering, arrangement;
        const char* rows;
    } cases[] = {
        {4, 0, 0, "←|→|del|clr|√; ^|+|-|*|/; func|7|8|9|e E; cnst|4|5|6|π; trig|1|2|3|=); units|0|.|(; "},
        {1, 0, 1, "←|→|e E|√|/; del|clr|π|^|*; func|7|8|9|-; cnst|4|5|6|+; trig|1|2|3|=); units|0|.|(; "},
        {3, 4, 0,
         "←|→|del|clr|√; ^|+|-|*|/; func|7|8|9|e E; cnst|4|5|6|x π; trig|1|2|3|y; units|0|.|(|save; "
         "≥|>|≤|<; "},
        {4, 4, 1,
         "←|→|e E|√|/; del|clr|x π|^|*; func|7|8|9|-; cnst|4|5|6|+; trig|1|2|3|y; units|0|.|(|save; "
         "≥|>|≤|<; "},
        // Under the tall key of three rows lies one key, a blank; the last row begins one cell in.
        {4, 5, 0,
         "←|→|del|clr|√; ^|+|-|*|/; func|7|8|9|e E; cnst|4|5|6|π; trig|1|2|3|save; units|0|.|(|·; ·|x|y; "},
        {0, 0, 1, "←|→|+|-|7|8|9|e E; del|clr|*|/|4|5|6|π; func|cnst|^|√|1|2|3|=); trig|units|·|·|0|.|(; "},
        {2, 4, 0,
         "≥|←|→|+|-|7|8|9|e E; >|del|clr|*|/|4|5|6|π; ≤|func|cnst|^|√|1|2|3|save; <|trig|units|x|y|0|.|(; "},
        {0, 5, 0,
         "←|→|+|-|7|8|9|e E; del|clr|*|/|4|5|6|π; func|cnst|^|√|1|2|3|save; trig|units|x|y|0|.|(; "}};
    for (const auto& c : cases) {
        Model::m().setWhichKeyboard(c.arrangement);
        openOn(c.geometry, c.entering);
        EXPECT_EQ(rows(), c.rows);
    }
}

TEST_F(KeyboardLayoutTest, variableIsThatOfTheList) {
    Model& model = Model::m();
    const struct {
        int entering;
        ExpressionList* target;
        const char* keyOfPi;
        const char* wideRow;
    } cases[] = {{0, nullptr, "π", "·|·"},
                 {1, &model.equations(), "x π", "·|x"},
                 {1, &model.polarR(), "θ π", "·|θ"},
                 {1, &model.constants(), "π", "·|·"},
                 {2, &model.parametricX(), "t π", "·|t"},
                 {3, &model.polarR(), "π", "·|·"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.keyOfPi);
        openOn(4, c.entering, c.target);
        EXPECT_TRUE(key(c.keyOfPi));
        openOn(2, c.entering);
        keyboard->setTarget(c.target); // the keys follow
        EXPECT_TRUE(rows().ends_with(std::string("trig|units|") + c.wideRow + "|0|.|(; "));
    }
}

TEST_F(KeyboardLayoutTest, imaginaryUnitSharesTheKeyOfThePoint) {
    Model::m().setIOnMainKeyboard(true);
    open();
    press("2 +");
    key(". i")->pressed();
    EXPECT_EQ(entry(), "2+.");
    key(". i")->pressed();
    EXPECT_EQ(entry(), "2+i");
    openOn(0, 0);
    EXPECT_TRUE(rows().ends_with("trig|units|·|·|0|.|(; ")); // no key of its own on a wide keyboard either
}

TEST_F(KeyboardLayoutTest, frames) {
    const struct {
        int geometry, entering;
        const char* key;
        Rect frame;
    } keys[] = {// The grid is 312 by 256 points at (5, 232); its cells are cut to 62 by 42, of seven rows 36.
                {4, 0, "←", {6, 233, 60, 40}},
                {4, 0, "(", {192, 443, 60, 40}},
                {4, 0, "=", {254, 401, 60, 82}},
                {3, 5, "x", {130, 449, 60, 34}},
                {3, 5, "=", {254, 377, 60, 106}},
                {0, 0, "←", {11, 676, 84, 62}},
                {0, 0, "7", {410, 676, 84, 62}},
                {0, 0, "=", {671, 806, 84, 127}},
                {0, 4, "≥", {11, 676, 74, 62}}, // five columns at the left: 5 to 4
                {0, 4, "7", {768 - 10 - 698.0 * 4 / 9 + 1, 676, 74, 62}}};
    for (const auto& c : keys) {
        openOn(c.geometry, c.entering);
        Rect frame = key(c.key)->frame();
        EXPECT_NEAR(frame.x, c.frame.x, 1e-9) << c.key;
        frame.x = c.frame.x;
        EXPECT_EQ(frame, c.frame) << c.key;
    }
    const struct {
        int geometry, entering;
        Rect grid, backing, entry;
        double entryFont, keyFont;
    } lines[] = {{4, 0, {5, 232, 312, 256}, {0, 208, 320, 20}, {10, 208, 300, 20}, 17, 20},
                 {4, 1, {5, 232, 312, 256}, {0, 0, 320, 90}, {15, 0, 290, 90}, 18, 20},
                 {3, 4, {5, 232, 312, 256}, {0, 0, 320, 30}, {15, 0, 290, 30}, 28, 23},
                 {2, 0, {10, 331, 1004, 350}, {0, 297, 1024, 30}, {10, 297, 1004, 30}, 24, 36},
                 {1, 2, {10, 335, 748, 600}, {0, 0, 768, 180}, {15, 0, 738, 180}, 36, 40},
                 {0, 5, {10, 675, 748, 260}, {0, 0, 768, 180}, {15, 0, 738, 180}, 30, 30}};
    for (const auto& c : lines) {
        SCOPED_TRACE(c.geometry);
        openOn(c.geometry, c.entering);
        const KeyboardView& view = keyboard->keyboardView();
        const LabelRecord& entry = view.currentEntryLabel().record();
        EXPECT_EQ(view.gridFrame(), c.grid);
        EXPECT_EQ(view.backingLabel().frame, c.backing);
        EXPECT_EQ(entry.frame, c.entry);
        EXPECT_EQ(entry.fontSize, c.entryFont);
        EXPECT_EQ(entry.lineCount, c.entering == 0 ? 1 : 4);
        EXPECT_EQ(entry.alignment, c.entering == 0 ? TextAlignment::Right : TextAlignment::Left);
        EXPECT_EQ(view.displayTableFrame(),
                  (c.entering == 0 ? Rect{0, 0, c.backing.width, c.backing.y} : Rect{}));
        EXPECT_EQ(key("7")->appearance().fontSize, c.keyFont);
    }
}

TEST_F(KeyboardLayoutTest, colours) {
    const std::tuple<int, int, const char*, const char*> cases[] = {
        {4, 0, "a", "+"},    {4, 0, "b", "7"},     {4, 0, "b", "."},    {4, 0, "b", "e"}, {4, 0, "b", "("},
        {4, 0, "c", "="},    {4, 0, "b", "π"},     {4, 0, "f", "func"}, {4, 0, "g", "←"}, {4, 0, "g", "del"},
        {4, 0, "s", ""},     {4, 0, "f", "units"}, {4, 4, "h", "x π"},  {4, 4, "h", "y"}, {4, 4, "j", "≥"},
        {1, 5, "j@2x", "y"}, {1, 5, "h@2x", "π"}};
    for (const auto& [geometry, entering, image, title] : cases) {
        openOn(geometry, entering);
        EXPECT_EQ(key(title)->appearance().backgroundImageName, std::string("button") + image) << title;
    }
}

TEST_F(KeyboardLayoutTest, unknownKeysGeometriesAndModes) {
    EXPECT_EQ(colourClass("q", editingMode(0)), "a");
    EXPECT_TRUE(logHolds("Assertion failure"));
    EXPECT_EQ(keyboardLayoutString(5, editingMode(0), 0), "");
    EXPECT_EQ(keyboardLayoutString(0, editingMode(6), 0), "");
    EXPECT_EQ(keyboardLayoutString(4, editingMode(-1), 0), "");
    open(6);
    EXPECT_TRUE(keyboard->keyboardView().buttonArray().empty());
    EXPECT_FALSE(keyboard->hardwareKey("Enter")); // and no tall key to press
}

TEST_F(KeyboardLayoutTest, rotationAndSettingsRebuildTheKeys) {
    openOn(1, 0);
    press("( 2");
    const int reloads = screen.reloads;
    device.setStatusBarOrientation(Orientation::LandscapeLeft);
    keyboard->willAnimateRotation(Orientation::LandscapeLeft);
    keyboard->keyboardView().setSize(1024, 699);
    keyboard->didRotate(Orientation::Portrait);
    EXPECT_TRUE(rows().starts_with("←|→|+|-|7|8|9|e E; "));
    EXPECT_EQ(key("=")->titleString(), ")"); // the line and the tall key's face survive
    EXPECT_GT(screen.reloads, reloads);

    device = PlainDevice(DeviceClass::Phone); // a window made small
    keyboard->keyboardView().setSize(320, 499);
    EXPECT_TRUE(rows().starts_with("←|→|del|clr|√; "));
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
