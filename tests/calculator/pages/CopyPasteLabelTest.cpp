#include "calculator/pages/CopyPasteLabel.h"
#include "tests/calculator/CalculatorFixture.h"

namespace velmora::test {
namespace {

TEST_F(ModelTest, formulaLabelOffersToCopyAndTakesTheOtherCommandsDirectly) {
    CopyPasteLabel label;
    label.setText("E=m c^2");
    label.doubleTapped({3, 4});
    EXPECT_EQ(label.menuPoint(), (Point{3, 4}));
    EXPECT_TRUE(CopyPasteLabel::canPerformAction(EditCommand::Copy));
    EXPECT_FALSE(CopyPasteLabel::canPerformAction(EditCommand::Paste));
    label.copy();
    EXPECT_FALSE(label.isFirstResponder());
    EXPECT_FALSE(label.tapped());
    label.cut();
    EXPECT_EQ(label.text(), "");
    label.paste();
    EXPECT_EQ(label.text(), "E=m c^2");
    pasteboard.setItems({{{"a.bytes", PropertyData{0x0f, 0xa2, 0, 1, 0x20}}}});
    label.paste();
    EXPECT_EQ(label.text(), "<0fa20001 20>");
}

} // namespace
} // namespace velmora::test
