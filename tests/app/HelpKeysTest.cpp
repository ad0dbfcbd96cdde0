// What the help tells to press is pressed, on the keys themselves, and shows what it tells.

#include "calculator/pages/Page.h"
#include "resources/CompiledResources.h"
#include "tests/calculator/CalculatorFixture.h"

namespace velmora {
namespace {

class HelpKeys : public test::KeyboardTest {
protected:
    HelpKeys() { registerCompiledResources(); }
};

TEST_F(HelpKeys, giveWhatTheHelpSays) {
    int examples = 0;
    for (const std::string& name : pageNames()) {
        for (const PageItem& item : loadPage(name).items) {
            if (item.kind != PageItem::Kind::Keys) {
                continue;
            }
            SCOPED_TRACE(name + ": " + item.text);
            Model::resetForTests();
            open();
            press(item.text);
            ASSERT_FALSE(history().empty());
            EXPECT_TRUE(history().back().ends_with(" = " + item.shown)) << history().back();
            ++examples;
        }
    }
    EXPECT_GE(examples, 3);
}

} // namespace
} // namespace velmora
