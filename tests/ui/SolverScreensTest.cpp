// The solvers of equations and of the triangle as a person works them, on the real screens.

#include "calculator/model/Model.h"
#include "tests/ui/RunningProgram.h"
#include "tools/kept/KeptTexts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

class SolverScreens : public testing::TestWithParam<QSize> {
protected:
    SolverScreens() { KeptTexts::resetForTests(); }

    RunningProgram program{GetParam()};
    void picture(const char* name) {
        program.takePicture(utf8(name) + u'-' + QString::number(GetParam().width()) + u'x' +
                            QString::number(GetParam().height()));
    }
    void openTab(const char* title) {
        if (!program.isOnScreen(utf8(title))) {
            program.click(utf8("More"));
        }
        program.click(utf8(title));
    }
    /// Characters typed on a keyboard with keys.
    void key(const char* text) {
        for (const char* c = text; *c != 0; ++c) {
            QTest::keyClick(&program.window(), *c);
        }
        program.settle();
    }
};

TEST_P(SolverScreens, anEquationIsTypedSolvedCopiedAndUsed) {
    openTab("Polynomial Solvers");
    picture("solvers");
    program.click(utf8("Cubic Equation Solver"));
    picture("cubic-empty");
    key("1"); // the first field is ready
    program.press(Qt::Key_Tab);
    key("-1000003");
    program.press(Qt::Key_Down);
    program.click(utf8("3")); // the keys on screen type into the same field
    for (const char* digit : {"0", "0", "0", "0", "0", "2"}) {
        program.touch(utf8(digit));
    }
    program.click(utf8("Next field"));
    key("-20000000");
    program.click(utf8("Delete"));
    EXPECT_TRUE(program.isOnScreen(utf8("x³ − 1000003x² + 3000002x − 2000000 = 0")));
    picture("cubic-typed");
    program.press(Qt::Key_Return);
    picture("cubic-solved");
    EXPECT_TRUE(program.isOnScreen(utf8("x1=0.999997")) || program.isOnScreen(utf8("x2=0.999997")));
    EXPECT_TRUE(program.isOnScreen(utf8("more exactly: 1")));
    EXPECT_TRUE(program.isOnScreen(utf8("The curve with its real roots")));
    const QString first = program.isOnScreen(utf8("x1=0.999997")) ? utf8("x1=0.999997") : utf8("x2=0.999997");
    program.scrollTo(first);
    QTest::mouseClick(&program.window(), Qt::RightButton, Qt::NoModifier,
                      program.pointOf(program.item(first), 0.1));
    program.settle();
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("1"));
    program.click(utf8("Put %1 into the calculator's line").arg(first));
    EXPECT_EQ(program.line(), utf8("(1)"));
}

TEST_P(SolverScreens, whatIsNoNumberIsMarked) {
    openTab("Polynomial Solvers");
    program.click(utf8("Quadratic Equation Solver"));
    key("1");
    program.press(Qt::Key_Tab);
    key("2,5");
    program.click(utf8("Solve"));
    picture("quadratic-refused");
    EXPECT_FALSE(program.isOnScreen(utf8("x1=0")));
    program.press(Qt::Key_Tab);
    program.click(utf8("Coefficient of x"));
    QTest::keySequence(&program.window(), QKeySequence::SelectAll);
    key("2");
    program.click(utf8("Solve"));
    picture("quadratic-solved");
    EXPECT_TRUE(program.isOnScreen(utf8("x1=0")));
    program.window().hide(); // into the background, which saves
    program.settle();
    KeptTexts::resetForTests();
    program.startAgain();
    openTab("Polynomial Solvers");
    program.click(utf8("Quadratic Equation Solver"));
    EXPECT_TRUE(program.isOnScreen(utf8("x² + 2x = 0")));
}

TEST_P(SolverScreens, aTriangleIsSolvedAsItIsTyped) {
    openTab("Triangle Solver");
    picture("triangle-empty");
    key("1.5");
    program.press(Qt::Key_Tab);
    key("2");
    program.click(utf8("Angle A"));
    key("30");
    picture("triangle-two");
    EXPECT_TRUE(program.isOnScreen(utf8("There are two solutions.  Tap the triangle to toggle.")));
    program.touch(utf8("Triangle"));
    picture("triangle-other");
    EXPECT_TRUE(program.isOnScreen(utf8("Area 0.307008")));
    program.scrollTo(utf8("Clear all"));
    program.click(utf8("Clear all"));
    EXPECT_TRUE(program.isOnScreen(
        utf8("Enter three values, including at least one side.  Use degrees for angles.")));
    program.click(utf8("Side a"));
    for (const char* text : {"3", "4", "5"}) {
        key(text);
        program.press(Qt::Key_Return); // on to the next field
    }
    picture("triangle-345");
    EXPECT_TRUE(program.isOnScreen(utf8("There is one solution.")));
    EXPECT_TRUE(program.isOnScreen(utf8("Area 6")));
    program.scrollTo(utf8("Clear calculated"));
    program.click(utf8("Clear calculated"));
    EXPECT_FALSE(program.isOnScreen(utf8("Area 6")));
}

INSTANTIATE_TEST_SUITE_P(Sizes, SolverScreens,
                         testing::Values(QSize(320, 480), QSize(390, 844), QSize(768, 1024),
                                         QSize(1024, 768)),
                         [](const auto& size) {
                             return "of" + std::to_string(size.param.width()) + "x" +
                                    std::to_string(size.param.height());
                         });

} // namespace
} // namespace velmora
