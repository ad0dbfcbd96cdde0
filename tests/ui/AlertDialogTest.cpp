#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"
#include "platform/machine/Alert.h"

#include <QKeyEvent>
#include <QPointingDevice>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace velmora {

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

} // namespace

TEST(AlertDialog, blocksTheScreenUntilEachIsAnsweredInTurn) {
    RunningProgram program;
    std::vector<int> answers;
    const auto remember = [&](int button) { answers.push_back(button); };
    presentAlert({"Recursion found.", "Please avoid having the equation call itself.", {"OK"}, remember});
    presentAlert({"", "Two ways", {"Keep", "Erase"}, remember});
    program.settle();
    program.takePicture(utf8("alert"));

    EXPECT_TRUE(program.isOnScreen(utf8("Recursion found.")));
    EXPECT_FALSE(program.isOnScreen(utf8("Two ways")));
    program.click(utf8("5")); // a key behind it
    program.type(utf8("7"));
    EXPECT_EQ(program.line(), QString());

    program.click(utf8("OK"));
    EXPECT_EQ(answers, std::vector{0});
    EXPECT_TRUE(program.isOnScreen(utf8("Two ways")));
    program.click(utf8("Erase"));
    EXPECT_EQ(answers, (std::vector{0, 1}));
    EXPECT_FALSE(program.isOnScreen(utf8("Two ways")));

    program.type(utf8("8")); // and the keyboard reaches the line again
    EXPECT_EQ(program.line(), utf8("8"));
}

// Both once deleted a constant through a page that was gone.
TEST(AlertDialog, endsWhatWasPressedBehindIt) {
    RunningProgram program;
    Model::m().constants().setNameAtIndex(0, "mass");
    program.clickAll(utf8("constants, User-defined constants, Edit"));
    program.click(utf8("k1 from user-defined constants, mass"));
    const QPoint back = program.pointOf(program.item(utf8("Back to User-defined constants")));
    const auto frame = [&] { return QTest::touchEvent(&program.window(), program.touchScreen()); };
    const QPoint remove = program.pointOf(program.item(utf8("Delete constant")));
    frame().press(0, back).commit();
    frame().stationary(0).press(1, remove).commit();
    frame().stationary(0).release(1, remove).commit();
    program.settle();
    ASSERT_TRUE(program.isOnScreen(utf8("Delete mass?")));
    frame().release(0, back).commit();
    program.settle();
    program.click(utf8("Cancel"));
    EXPECT_TRUE(program.isOnScreen(utf8("Delete constant"))) << "the page was not left";

    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, back);
    program.item(utf8("Delete constant"))->forceActiveFocus(Qt::TabFocusReason);
    program.press(Qt::Key_Space);
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, back);
    program.settle();
    ASSERT_TRUE(program.isOnScreen(utf8("Delete mass?")));
    program.click(utf8("Delete"));
    EXPECT_FALSE(program.isOnScreen(utf8("Delete constant"))) << "there is nothing left to delete";
    EXPECT_TRUE(program.isOnScreen(utf8("Value, not defined"))) << "and the page is still there";
    EXPECT_EQ(Model::m().constants().fullFunctionNameWithIndex(0), "k1");
}

TEST(AlertDialog, isWorkedByArrowsAndLeftByEscape) {
    RunningProgram program;
    std::vector<int> answers;
    const auto ask = [&](std::vector<std::string> buttons) {
        presentAlert({"Title", "", std::move(buttons), [&](int button) { answers.push_back(button); }});
        program.settle();
    };
    ask({"One", "Two", "Three"});
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}) {
        program.press(key);
    }
    ask({"Keep", "Cancel", "Erase"});
    program.press(Qt::Key_Escape);
    ask({"OK"});
    program.press(Qt::Key_Escape);
    ask({"Slow", "Fast"});
    program.press(Qt::Key_Escape); // which of them it should be nobody knows
    program.press(Qt::Key_Down);
    program.press(Qt::Key_Enter);
    EXPECT_EQ(answers, (std::vector{1, 1, 0, 1}));
    // A key that is still held from before answers nothing.
    ask({"Erase", "Cancel"});
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(&program.window(), &held);
    EXPECT_EQ(answers.size(), 4U);
}

TEST(AlertDialog, isAnsweredByReturn) {
    RunningProgram program;
    int answer = -1;
    presentAlert({"Title", "Message", {"First", "Second"}, [&](int button) { answer = button; }});
    program.settle();
    program.press(Qt::Key_Return);
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(program.historyRows(), QStringList());
}

} // namespace velmora
