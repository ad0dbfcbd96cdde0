#include "tests/calculator/CalculatorFixture.h"

#include "engine/tree/Expression.h"
#include "platform/files/KeyedArchive.h"

namespace velmora::test {
namespace {

class EditingModesTest : public KeyboardTest {
public:
    Model& model() { return Model::m(); }
    bool isOpen() { return stack->topViewController() == keyboard; }
    void openEquation(int slot) { open(1, &model().equations(), slot); }
};

TEST_F(EditingModesTest, entryLineNamesTheEquation) {
    const struct {
        int entering;
        ExpressionList* target;
        int slot;
        const char* entry;
    } cases[] = {{1, &model().equations(), 0, "y1(x)=7"},
                 {1, &model().polarR(), 1, "r2(θ)=7"},
                 {2, &model().parametricX(), 3, "x4(t)=7"},
                 {3, &model().polarR(), 0, "r1(θ)=7"},
                 {1, &model().constants(), 0, "k1=7"},
                 {5, &model().impliedFunctions(), 2, "7= 0"},
                 {4, nullptr, 0, "7"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entry);
        open(c.entering, c.target, c.slot);
        press("7");
        EXPECT_EQ(entry(), c.entry);
        EXPECT_EQ(key("=")->titleString(), "save");
        EXPECT_FALSE(keyboard->displayTableViewController());
    }
    LevelCurveHeights* heights = model().impliedFunctions().levelCurveHeightsAtIndex(2);
    heights->setLevelCurves(true);
    heights->setStart(-1);
    heights->setDelta(0.5);
    heights->setN(3);
    open(5, &model().impliedFunctions(), 2);
    press("x + y ←");
    EXPECT_EQ(entry(), "x+_y= -1, -0.5, 0");
}

TEST_F(EditingModesTest, savingStoresTheLineAndLeaves) {
    openEquation(1);
    key("x π")->pressed();
    press("^ 2 =");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(model().equations().descriptionWithIndex(1), "y2(x)=x^2");
    openEquation(1);
    press("="); // an empty line is an empty equation
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(model().equations().nonemptyExpressionAtIndex(1));

    model().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("x")), true);
    openEquation(0);
    keyboard->setDisplayModel(std::make_unique<ExpressionWithTokenArray>(tokens("x")));
    EXPECT_EQ(entry(), "y1(x)=x");
    EXPECT_EQ(keyboard->rightBarButtons().at(0).title, "Clear+Save");
    EXPECT_TRUE(keyboard->pressRightBarButton(0));
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(model().equations().nonemptyExpressionAtIndex(0));
}

TEST_F(EditingModesTest, whatCannotBeStoredStaysOpenWithItsError) {
    model().equations().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("x")), true);
    const struct {
        const char* function;
        const char* keys;
        const char* entry;
        const char* title;
        const char* message;
    } cases[] = {{"sin(", "2 ) + =", "y1(x)=sin(2)+", "", "Unable to parse"},
                 {"y1(", "2 = =", "y1(x)=y1(2)", "Recursion found.",
                  "Please avoid having the equation call itself, or another equation that calls it."}};
    for (const auto& c : cases) {
        alerts.clear();
        openEquation(0);
        keyboard->functionSelected(c.function);
        press(c.keys);
        EXPECT_TRUE(isOpen());
        ASSERT_EQ(alerts.alerts().size(), 1U);
        EXPECT_EQ(alerts.alerts()[0].title, c.title);
        EXPECT_EQ(alerts.alerts()[0].message, c.message);
        EXPECT_EQ(alerts.alerts()[0].buttons, Texts{"OK"});
        EXPECT_EQ(entry(), c.entry);
        EXPECT_EQ(model().equations().descriptionWithIndex(0), "y1(x)=x");
    }
}

TEST_F(EditingModesTest, theHistoryIsNeitherUsedNorErased) {
    model().history().addExpressionTokenArray(tokens("1"));
    openEquation(0);
    press("+");
    EXPECT_EQ(entry(), "y1(x)=+");
    press("clr clr clr clr clr clr");
    EXPECT_EQ(model().history().nExpressions(), 1);
}

TEST_F(EditingModesTest, inequalities) {
    open(4, nullptr, 2);
    key("x π")->pressed();
    press("+ y ≥");
    EXPECT_EQ(entry(), "x+y"); // the sign in force is lit on its key
    EXPECT_TRUE(key("≥")->appearance().chosen);
    EXPECT_FALSE(key("<")->appearance().chosen);
    press("=");
    EXPECT_FALSE(isOpen());
    const InequalityTokens& stored = model().inequalityArray()[2];
    EXPECT_EQ(stored.inequalityString(), "x+y≥0");
    const auto tree = stored.inequality();
    EXPECT_EQ(tree->valueWithVariableValues(1.0, -1.0), ComplexValue(1)); // equality counts
    EXPECT_EQ(tree->valueWithVariableValues(1.0, -2.0), ComplexValue(0));

    open(4, nullptr, 1);
    press("+ =");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(alerts.alerts().size(), 1U);
}

TEST(InequalityTokensTest, checkedUntilTheNextChange) {
    void (*const changes[])(InequalityTokens&) = {
        [](auto& i) { i.insertToken(Token("1")); }, [](auto& i) { i.deleteAtCursor(); },
        [](auto& i) { i.reset(); }, [](auto& i) { i.setInequalityTypeWithToken(Token(">")); }};
    for (const auto& change : changes) {
        SCOPED_TRACE(&change - changes);
        InequalityTokens inequality(tokens("x + y"));
        EXPECT_FALSE(inequality.hasBeenCheckedForPolynomial());
        inequality.setHasBeenCheckedForPolynomial(true);
        inequality.moveCursor(-1);
        EXPECT_TRUE(inequality.hasBeenCheckedForPolynomial());
        EXPECT_FALSE(InequalityTokens(inequality).hasBeenCheckedForPolynomial());
        change(inequality);
        EXPECT_FALSE(inequality.hasBeenCheckedForPolynomial());
    }
}

TEST(InequalityTokensTest, copiesAndArchivesWithItsSign) {
    InequalityTokens inequality(tokens("x * y"));
    EXPECT_EQ(inequality.inequalityString(), "x*y<0");
    inequality.setInequalityTypeWithToken(Token("="));
    EXPECT_EQ(inequality.inequalityType(), "<"); // no such sign
    inequality.setInequalityTypeWithToken(Token("≤"));
    const auto copy = inequality.copy();
    ASSERT_TRUE(dynamic_cast<InequalityTokens*>(copy.get()));
    KeyedArchiver archiver;
    copy->encodeWithCoder(archiver);
    EXPECT_EQ(InequalityTokens::decode(KeyedUnarchiver(archiver.propertyList())).inequalityString(), "x*y≤0");

    archiver.encode("InequalityTypeKey", "!");
    EXPECT_EQ(InequalityTokens::decode(KeyedUnarchiver(archiver.propertyList())).inequalityString(), "x*y<0");
    EXPECT_EQ(InequalityTokens::decode(KeyedUnarchiver(PropertyList())).inequalityString(), "");
}

} // namespace
} // namespace velmora::test
