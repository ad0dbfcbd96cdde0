#include "tests/calculator/CalculatorFixture.h"

#include "calculator/FunctionListScreen.h"

namespace velmora::test {
namespace {

class ListScreen final : public OtherScreen, public FunctionListScreen {
public:
    void setFunctionListName(std::string listName) override { name = std::move(listName); }
    void setVariableIsDefined(bool defined) override { variableIsDefined = defined; }

    std::string name;
    bool variableIsDefined = false;
};

using OpenedScreensTest = KeyboardTest;

TEST_F(OpenedScreensTest, unregisteredScreensDoNothingButLog) {
    open();
    press("1");
    for (const char* title : {"func", "cnst", "trig", "units"}) {
        logged.clear();
        press(title);
        EXPECT_EQ(stack->topViewController(), keyboard) << title;
        EXPECT_TRUE(logHolds("ViewController")) << title;
    }
    EXPECT_FALSE(Model::m().unitConverterIsPushed());
    EXPECT_EQ(entry(), "1");
}

TEST_F(OpenedScreensTest, listsAreToldWhatToShow) {
    ScreenRegistry::shared().registerScreen("FunctionSelectViewController",
                                            [] { return std::make_shared<ListScreen>(); });
    const struct {
        int entering;
        ExpressionList* target;
        const char* key;
        const char* list;
        bool variableIsDefined;
    } cases[] = {{0, nullptr, "func", "Functions", false},
                 {0, nullptr, "cnst", "Constants", false},
                 {0, nullptr, "trig", "TrigFunctions", false},
                 {1, &Model::m().equations(), "func", "Functions", true},
                 {1, &Model::m().constants(), "func", "Functions", false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.list);
        open(c.entering, c.target);
        press(c.key);
        const auto list = std::dynamic_pointer_cast<ListScreen>(stack->topViewController());
        ASSERT_TRUE(list);
        EXPECT_EQ(list->name, c.list);
        EXPECT_EQ(list->variableIsDefined, c.variableIsDefined);
    }
}

TEST_F(OpenedScreensTest, choicesAreInserted) {
    open();
    keyboard->functionSelected("gcd(,");
    press("1 2");
    EXPECT_EQ(entry(), "gcd(12_,");
    press("→ 8 = =");
    EXPECT_EQ(history().back(), "gcd(12,8) = 4");
    keyboard->namedExpressionSelected(Token("G=6.6742(8)"));
    press("* 2");
    EXPECT_EQ(entry(), "G*2");
    press("clr");
    keyboard->functionSelected("^"); // continues the last answer like the key
    EXPECT_EQ(entry(), "ans^");
}

TEST_F(OpenedScreensTest, onlyTheCalculatorsUnitConverterIsRememberedWhileOpen) {
    ScreenRegistry::shared().registerScreen("UnitConvertViewController",
                                            [] { return std::make_shared<OtherScreen>(); });
    for (const int entering : {0, 1}) {
        open(entering, entering == 1 ? &Model::m().equations() : nullptr);
        press("units");
        EXPECT_EQ(stack->topViewController()->title(), "Units");
        EXPECT_EQ(Model::m().unitConverterIsPushed(), entering == 0);
        stack->pop();
        EXPECT_FALSE(Model::m().unitConverterIsPushed());
    }
}

} // namespace
} // namespace velmora::test
