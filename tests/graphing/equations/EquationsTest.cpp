#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"
#include "calculator/settings/RangeViewController.h"
#include "graphing/equations/EquationsViewController.h"
#include "graphing/equations/ParametricEquationsViewController.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

/// The screen of equations for a graph type, alone on a stack, on a device of a keyboard geometry.
class Equations : public testing::Test {
protected:
    Equations() {
        Model::resetForTests();
        ScreenRegistry::shared().registerScreen("RangeViewController",
                                                [] { return std::make_shared<RangeViewController>(); });
    }
    ~Equations() override {
        ScreenRegistry::shared().reset();
        Model::resetForTests();
    }

    void open(int geometry, int graphType) {
        const bool isPhone = geometry >= 3;
        device = PlainDevice(isPhone ? DeviceClass::Phone : DeviceClass::Tablet,
                             geometry == 2 ? Orientation::LandscapeLeft : Orientation::Portrait);
        Model& model = Model::m();
        model.setDisplayMode(geometry == 0 ? 2 : 1);
        model.setLargeFontsOnPhone(geometry == 3);
        model.setGraphType(graphType);
        ASSERT_EQ(model.keyboardGeometry(), geometry);
        if (graphType == 2) {
            screen = std::make_shared<ParametricEquationsViewController>();
        } else {
            screen = std::make_shared<EquationsViewController>();
        }
        stack = std::make_shared<NavigationController>(screen);
        stack->appear();
    }

    PlainDevice device{DeviceClass::Phone};
    DeviceScope scope{device};
    std::shared_ptr<GenericEquationsViewController> screen;
    std::shared_ptr<NavigationController> stack;
};

TEST_F(Equations, fillTheScreenInLettersOfItsSize) {
    struct SizeCase {
        int geometry;
        double width, rowHeight, fontSize, smallFontSize, margin;
    };
    const SizeCase sizes[] = {{0, 768, 232, 40, 34, 20},
                              {1, 768, 232, 52, 44, 20},
                              {2, 1024, 168, 52, 44, 20},
                              {3, 320, 118, 26, 22, 10},
                              {4, 320, 118, 20, 17, 10}};
    for (const SizeCase& c : sizes) {
        for (int graphType = 0; graphType <= 2; ++graphType) {
            SCOPED_TRACE(testing::Message() << "geometry " << c.geometry << ", type " << graphType);
            open(c.geometry, graphType);
            EXPECT_EQ(screen->heightForRow(), graphType == 2 ? c.rowHeight / 2 : c.rowHeight);
            const EquationCell cell = screen->cell(0, c.width);
            EXPECT_EQ(cell.equationLabel().fontSize, c.fontSize);
            EXPECT_EQ(cell.variableLabel().fontSize, c.smallFontSize);
            EXPECT_EQ(cell.equalsZeroLabel().fontSize, c.smallFontSize);
            EXPECT_EQ(cell.variableLabel().frame.x, c.margin);
            EXPECT_EQ(cell.equationLabel().frame.x + cell.equationLabel().frame.width, c.width - c.margin);
            EXPECT_EQ(cell.equalsZeroLabelWidth(), 0);
        }
    }
    const EquationCell widened({320, 50}, "f(x, y)", "x", slotColor(0), 60, "=0");
    EXPECT_EQ(widened.equalsZeroLabel().text, "=0");
    EXPECT_EQ(widened.equalsZeroLabel().frame, (Rect{250, 0, 60, 50}));
    EXPECT_EQ(widened.equationLabel().frame.x + widened.equationLabel().frame.width, 250);
}

TEST_F(Equations, openTheEditorOfTheirRow) {
    const Color colors[] = {
        {1, 0.17, 0, 1}, {0, 0.55, 1, 1}, {0.12, 0.565, 0.095, 1}, {0.615, 0.25, 0.67, 1}};
    struct TypeCase {
        const char* title;
        int rows, row;
        const char *variable, *equation;
        int mode, slot;
        ExpressionList& target;
        bool hasRange;
    };
    Model& model = Model::m();
    const TypeCase cases[] = {
        {"Equations", 4, 2, "y3(x)=", "", 1, 2, model.equations(), false},
        {"Polar Equations", 4, 1, "r2(θ)=", "2θ", 1, 1, model.polarR(), true},
        {"Parametric Equations", 8, 6, "", "x4(t)=", 2, 3, model.parametricX(), true},
        {"Parametric Equations", 8, 1, "", "y1(t)=2t", 2, 0, model.parametricY(), true}};
    model.polarR().setExpressionAtIndex(1, ExpressionWithTokenArray(tokens("2 θ")), false);
    model.parametricY().setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("2 t")), false);
    for (const TypeCase& c : cases) {
        SCOPED_TRACE(std::string(c.title) + " row " + std::to_string(c.row));
        open(4, c.target.variableNameString() == "t" ? 2 : c.hasRange ? 1 : 0);
        EXPECT_EQ(screen->title(), c.title);
        EXPECT_EQ(screen->tabTitle(), "Equations");
        EXPECT_EQ(screen->tabImage(), "equation.png");
        EXPECT_EQ(screen->numberOfRows(), c.rows);
        const EquationCell cell = screen->cell(c.row, 320);
        EXPECT_EQ(cell.variableLabel().text, c.variable);
        EXPECT_EQ(cell.equationLabel().text, c.equation);
        EXPECT_EQ(cell.equalsZeroLabel().text, "");
        for (const LabelRecord* label :
             {&cell.variableLabel(), &cell.equationLabel(), &cell.equalsZeroLabel()}) {
            EXPECT_EQ(label->textColor, colors[c.slot]);
        }
        screen->selectRow(99);
        EXPECT_EQ(stack->topViewController(), screen);
        screen->selectRow(c.row);
        const auto editor = std::dynamic_pointer_cast<KeyboardViewController>(stack->topViewController());
        ASSERT_TRUE(editor);
        EXPECT_EQ(editor->title(), "Equation");
        EXPECT_EQ(editor->entering(), c.mode);
        EXPECT_EQ(editor->enteringWhichEquation(), c.slot);
        EXPECT_EQ(editor->target(), &c.target);
        EXPECT_EQ(screen->backButtonTitle(), "Cancel");
        stack->pop();
        EXPECT_EQ(screen->backButtonTitle(), c.title);
        ASSERT_EQ(screen->rightBarButtons().size(), c.hasRange ? 1U : 0U);
        EXPECT_EQ(screen->pressRightBarButton(0), c.hasRange);
        EXPECT_EQ(stack->topViewController()->title(), c.hasRange ? "Range" : c.title);
        // A range has no meaning for functions, so its page does not come back.
        stack->disappear();
        model.setGraphType(0);
        stack->appear();
        EXPECT_EQ(stack->topViewController(), screen);
        EXPECT_TRUE(screen->isVisible());
        screen->createSwitchButton();
        EXPECT_EQ(screen->rightBarButtons().back().title, "Mode");
        EXPECT_TRUE(screen->pressRightBarButton(c.hasRange ? 1 : 0));
        EXPECT_EQ(stack->topViewController()->title(), "Graph type");
    }
}

} // namespace
} // namespace velmora
