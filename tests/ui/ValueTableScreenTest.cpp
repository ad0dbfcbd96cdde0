// The table of values under real fingers and keys.

#include "tests/engine/TokenLine.h"
#include "tests/ui/RunningProgram.h"

#include "calculator/model/GraphType.h"
#include "calculator/model/Model.h"
#include "platform/machine/Pasteboard.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

void store(ExpressionList& list, int slot, const char* line) {
    list.setExpressionAtIndex(slot, ExpressionWithTokenArray(tokens(line)), true);
}

class ValueTableScreen : public testing::TestWithParam<QSize> {
protected:
    void picture(const char* name) {
        program.takePicture(utf8(name) + u'-' + QString::number(GetParam().width()) + u'x' +
                            QString::number(GetParam().height()));
    }
    void openTable() {
        if (!program.isOnScreen(utf8("Table"))) {
            program.click(utf8("More"));
        }
        program.click(utf8("Table"));
    }

    RunningProgram program{GetParam()};
};

TEST_P(ValueTableScreen, rowsAreReadOpenedCopiedAndUsed) {
    openTable();
    EXPECT_TRUE(program.isOnScreen(utf8("You haven't saved any equations!")));
    picture("table-empty");
    program.click(utf8("Calculator"));
    Model& model = Model::m();
    store(model.equations(), 0, "x ^ 2 / 3");
    store(model.equations(), 1, "sin( x )");
    store(model.equations(), 2, "e ^ x");
    store(model.equations(), 3, "1 / ( x - 5 )");
    openTable();
    picture("table");
    const QString first =
        utf8("x = -10, y1(x) = 33.33333, y2(x) = 0.54402, y3(x) = 4.53999E-05, y4(x) = -0.06667");
    ASSERT_TRUE(program.isOnScreen(first));
    EXPECT_TRUE(program.isOnScreen(utf8("y3")));

    program.touch(first);
    picture("table-row");
    program.click(utf8("Copy the value of y1(x)"));
    EXPECT_EQ(generalPasteboard().text(), "33.333333333333336");
    program.click(utf8("Back to Table"));
    ASSERT_TRUE(program.isOnScreen(first));

    program.press(Qt::Key_End);
    picture("table-end");
    program.press(Qt::Key_Up);
    program.press(Qt::Key_Return);
    ASSERT_TRUE(program.isOnScreen(utf8("Use the value of x in the calculator")));
    program.click(utf8("Use the value of x in the calculator"));
    EXPECT_EQ(program.line(), utf8("(99)")) << "a finished operand";

    model.setGraphType(static_cast<int>(GraphType::Parametric));
    for (int slot = 0; slot < 3; ++slot) {
        store(model.parametricX(), slot, "cos( t ) * 1234567");
        store(model.parametricY(), slot, "sqrt( t )");
    }
    openTable();
    program.settle();
    picture("table-pairs");
}

INSTANTIATE_TEST_SUITE_P(Sizes, ValueTableScreen,
                         testing::Values(QSize(320, 480), QSize(390, 844), QSize(768, 1024),
                                         QSize(1024, 768)),
                         [](const auto& parameter) {
                             return std::to_string(parameter.param.width()) + "by" +
                                    std::to_string(parameter.param.height());
                         });

} // namespace
} // namespace velmora
