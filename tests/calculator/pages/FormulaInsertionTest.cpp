// The button beside a formula: what it asks for, and what comes into the line.

#include "calculator/pages/FormulaInsertion.h"
#include "calculator/pages/PageViewController.h"
#include "platform/files/Resources.h"
#include "tests/calculator/CalculatorFixture.h"

namespace velmora {
namespace {

class FormulaInsertion : public test::KeyboardTest {
protected:
    FormulaInsertion() {
        registerResource("Constants.plist",
                         "<plist version=\"1.0\"><array><string>Constants</string>"
                         "<string>Constants</string><dict><key>content</key>"
                         "<string>c=299792458</string><key>hint</key><string>light</string>"
                         "</dict></array></plist>");
        open();
    }

    /// Opens a page with one formula above the line and presses its button.
    void pressButton(const std::string& insertion, const std::string& letters = "") {
        registerResource("Sheet.page",
                         m_text = "title Sheet\nformula A\ninsert " + insertion + "\n" + letters);
        const auto page = std::make_shared<PageViewController>("Sheet");
        stack->push(page, false);
        page->insert(0);
        form = std::dynamic_pointer_cast<FormulaFormViewController>(stack->topViewController());
    }
    bool isAtLine() const { return stack->topViewController() == keyboard; }

    std::shared_ptr<FormulaFormViewController> form;

private:
    ResourcesScope m_resources;
    std::string m_text;
};

TEST_F(FormulaInsertion, asksForEachLetterOnceAndInsertsTheFinishedExpression) {
    pressButton("pi*r^2*h/r", "letter r radius");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->title(), "Sheet");
    ASSERT_EQ(form->sections().size(), 2U);
    ASSERT_EQ(form->sections()[0].cells.size(), 2U);
    EXPECT_EQ(form->sections()[0].cells[0]->title(), "r, radius");
    EXPECT_EQ(form->sections()[0].cells[1]->title(), "h");
    form->insert();
    ASSERT_EQ(alerts.alerts().size(), 1U);
    EXPECT_EQ(alerts.alerts()[0].message, "A value for r is missing.");
    for (const char* refused : {"r", "2x", "1,5", "1e999", "--1", "(2)"}) {
        form->setText(*form->sections()[0].cells[0], refused);
        EXPECT_EQ(form->fields()[0].text, "") << refused;
    }
    form->setText(*form->sections()[0].cells[0], " 1 0 ");
    form->setText(*form->sections()[0].cells[1], "-2.5e1");
    form->tap(*form->sections()[1].cells[0]);
    EXPECT_TRUE(isAtLine());
    EXPECT_EQ(entry(), "π*10^2*(-2.5E1)/10");
    press("=");
    EXPECT_EQ(history().back(), "π*10^2*(-2.5E1)/10 = -785.39816");
}

TEST_F(FormulaInsertion, asksNothingWhereNothingIsMissing) {
    pressButton("(1+sqrt(5))/2*{c}");
    EXPECT_TRUE(isAtLine());
    EXPECT_EQ(entry(), "(1+sqrt(5))/2*c");
}

TEST_F(FormulaInsertion, staysOneOperandBehindOtherThings) {
    press("2 ^");
    pressButton("1+2");
    EXPECT_EQ(entry(), "2^(1+2)");
    press("=");
    EXPECT_EQ(history().back(), "2^(1+2) = 8");
}

TEST_F(FormulaInsertion, keepsTheVariablesOfTheLine) {
    open(1, &Model::m().equations());
    pressButton("m*x+b");
    ASSERT_TRUE(form);
    ASSERT_EQ(form->fields().size(), 2U);
    EXPECT_TRUE(form->setValue(0, "3"));
    EXPECT_TRUE(form->setValue(1, "4"));
    EXPECT_FALSE(form->setValue(1, "b")) << "b is a variable of no line";
    EXPECT_FALSE(form->setValue(2, "1"));
    form->insert();
    EXPECT_TRUE(isAtLine());
    EXPECT_NE(entry().find("3*x+4"), std::string::npos) << entry();
}

TEST_F(FormulaInsertion, letsVariablesOfOtherLinesStandOrBeGiven) {
    pressButton("x+t");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->fields()[0].text + form->fields()[1].text, "xt");
    EXPECT_TRUE(form->setValue(0, "5"));
    form->insert();
    EXPECT_EQ(entry(), "5+t");
}

TEST_F(FormulaInsertion, insertsNothingThatDoesNotParse) {
    for (const char* broken : {"1+*", "sin(", "{none}", "2#3", "comb(1)", ")"}) {
        alerts.clear();
        pressButton(broken);
        EXPECT_FALSE(isAtLine()) << broken;
        EXPECT_EQ(alerts.alerts().size(), 1U) << broken;
        EXPECT_EQ(entry(), "") << broken;
        stack->popTo(*keyboard, false);
    }
}

} // namespace
} // namespace velmora
