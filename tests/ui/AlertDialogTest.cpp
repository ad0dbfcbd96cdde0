#include "tests/ui/RunningProgram.h"

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
