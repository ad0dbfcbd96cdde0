#include "tests/calculator/CalculatorFixture.h"

namespace velmora::test {
namespace {

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

TEST_F(OpenedScreensTest, choicesAreInserted) {
    open();
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
