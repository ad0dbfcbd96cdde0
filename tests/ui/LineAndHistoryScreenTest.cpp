// What stands on the calculator's screen beside its keys: the line's signs, the history's place, the notices.

#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

void fillHistory(RunningProgram& program, int rows) {
    for (int row = 0; row < rows; ++row) {
        program.type(QString::number(row) + utf8("+1"));
        program.press(Qt::Key_Return);
    }
}

TEST(Line, showsAndChangesTheAngleMode) {
    RunningProgram program;
    program.click(utf8("Angle mode"));
    EXPECT_EQ(Model::m().angleMode(), 1);
    EXPECT_EQ(program.spokenName(program.items(QAccessible::AlertMessage).at(0)),
              utf8("Angles are in degrees."));
    program.type(utf8("sin(30)"));
    program.press(Qt::Key_Return);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("sin(30) is 0.5")});
    program.takePicture(utf8("angle-sign"));
    program.type(QString(60, QLatin1Char('1')));
    EXPECT_FALSE(program.isOnScreen(utf8("Angle mode"))); // the line stands there
    program.press(Qt::Key_Home);
    program.takePicture(utf8("long-line-home"));
}

TEST(Line, heldDeleteKeyRepeats) {
    RunningProgram program;
    program.type(QString(30, QLatin1Char('7')));
    const QPoint del = program.pointOf(program.item(utf8("delete")));
    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, del);
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.line().size() < 26; }, 5000));
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, del);
    program.settle();
    const auto left = program.line().size();
    QTest::qWait(300);
    EXPECT_EQ(program.line().size(), left);
    program.click(utf8("delete")); // a tap is one press
    EXPECT_EQ(program.line().size(), left - 1);
}

TEST(History, saysWhatToTryUntilTheFirstResult) {
    RunningProgram program;
    EXPECT_TRUE(program.isOnScreen(utf8("A tap on a result uses it again.")));
    program.takePicture(utf8("first-start"));
    program.type(utf8("2+3"));
    program.press(Qt::Key_Return);
    EXPECT_FALSE(program.isOnScreen(utf8("A tap on a result uses it again.")));
}

TEST(History, standsAtItsEndUnlessItWasLeftElsewhere) {
    RunningProgram program({320, 480});
    fillHistory(program, 30);
    const QString newest = utf8("29+1 is 30");
    program.application().delegate().applicationDidEnterBackground();
    program.startAgain();
    EXPECT_TRUE(program.historyRows().contains(newest));
    for (const QSize size : {QSize(768, 1024), QSize(375, 667), QSize(1024, 768), QSize(320, 480)}) {
        program.resize(size);
        EXPECT_TRUE(program.historyRows().contains(newest)) << size.width();
    }
    const QQuickItem* list = program.items(QAccessible::List).at(0);
    program.wheel(program.pointOf(list), 3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !list->property("moving").toBool(); }));
    const QStringList left = program.historyRows();
    EXPECT_FALSE(left.contains(newest));
    program.press(Qt::Key_2, Qt::ControlModifier); // another tab, and back
    EXPECT_FALSE(program.isOnScreen(utf8("History")));
    program.press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(program.historyRows(), left);
}

TEST(History, aClearedOneIsBroughtBackByItsNotice) {
    RunningProgram program;
    fillHistory(program, 2);
    program.clickAll(utf8("clear, clear, clear"));
    EXPECT_EQ(program.historyRows(), QStringList());
    program.takePicture(utf8("undo-notice"));
    program.click(utf8("Undo"));
    EXPECT_EQ(program.historyRows(), (QStringList{utf8("0+1 is 1"), utf8("1+1 is 2")}));
    EXPECT_FALSE(program.isOnScreen(utf8("Undo")));
}

TEST(History, whatDoesNotFitShrinksAndIsPushedSideways) {
    RunningProgram program({320, 480});
    Model::m().setLargeFontsOnPhone(true);
    program.resize({321, 480});
    program.type(utf8("(-2)^.3*1E107"));
    program.press(Qt::Key_Return);
    program.type(QString(60, QLatin1Char('8')));
    program.press(Qt::Key_Return);
    program.type(utf8("2+"));
    program.press(Qt::Key_Return);
    program.takePicture(utf8("long-result"));
    const auto rowOf = [&](const char* start) {
        const auto rows = program.items(QAccessible::ListItem);
        return *std::ranges::find_if(
            rows, [&](const QQuickItem* row) { return program.spokenName(row).startsWith(utf8(start)); });
    };
    const auto label = [&](const char* start, bool isResult) {
        std::vector<const QQuickItem*> labels;
        for (const QQuickItem* part : rowOf(start)->childItems()) {
            if (part->inherits("QQuickFlickable")) {
                labels.push_back(part);
            }
        }
        return labels.at(isResult ? 1 : 0);
    };
    // A complex result shows to its "i", written smaller.
    EXPECT_LT(label("(-2)", true)->property("fitting").toDouble(), 1);
    EXPECT_GT(label("(-2)", true)->property("fitting").toDouble(), 0.6);
    EXPECT_FALSE(label("(-2)", true)->property("goesOn").toBool());
    // What 60 % do not make fit is pushed from the end of the row, too, which is a button.
    const QQuickItem* line = label("888", false);
    EXPECT_EQ(line->property("fitting").toDouble(), 0.6);
    EXPECT_TRUE(line->property("goesOn").toBool());
    const QQuickItem* row = rowOf("888");
    program.drag(program.pointOf(row, 0.95, 0.3), program.pointOf(row, 0.5, 0.3));
    EXPECT_GT(line->property("contentX").toDouble(), 0);
    EXPECT_EQ(program.line(), QString());
}

TEST(Keys, leaveWhatWasPushed) {
    RunningProgram program;
    const std::pair<Qt::Key, Qt::KeyboardModifiers> ways[] = {{Qt::Key_Escape, Qt::NoModifier},
                                                              {Qt::Key_Backspace, Qt::NoModifier},
                                                              {Qt::Key_Left, Qt::AltModifier}};
    for (const auto& [key, modifiers] : ways) {
        program.click(utf8("functions"));
        EXPECT_FALSE(program.isOnScreen(utf8("equals")));
        program.press(key, modifiers);
        EXPECT_TRUE(program.isOnScreen(utf8("equals")));
    }
}

} // namespace
} // namespace velmora
