// What the shared parts of all screens look like, in the pixels of the window.

#include "tests/ui/RunningProgram.h"

#include "ui/touch/FocusMarks.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

/// The heights of the runs of a colour down a column of pixels.
std::vector<int> runsDown(const QImage& picture, int x, QRgb color) {
    std::vector<int> runs;
    bool inRun = false;
    for (int y = 0; y < picture.height(); ++y) {
        const bool hit = picture.pixel(x, y) == color;
        if (hit && !inRun) {
            runs.push_back(0);
        }
        if (hit) {
            ++runs.back();
        }
        inRun = hit;
    }
    return runs;
}

QRectF frameOfRole(RunningProgram& program, int role, const QString& name) {
    for (const QQuickItem* item : program.items(role)) {
        if (program.spokenName(item) == name) {
            return program.frameInWindow(item);
        }
    }
    ADD_FAILURE() << "nothing of that role is called " << name.toStdString();
    return {};
}

} // namespace

// A phone's scene is scaled by a broken number, where half a point is no pixel, or two.
TEST(Appearance, separatorsAreOnePixelAtEveryScale) {
    constexpr QRgb separator = 0xff2b2f36;
    RunningProgram program({390, 844});
    program.click(utf8("More"));
    for (const QSize size :
         {QSize(390, 844), QSize(375, 667), QSize(320, 480), QSize(411, 731), QSize(768, 1024)}) {
        program.resize(size);
        const std::size_t rows =
            program.items(QAccessible::Button).size(); // the tabs have a role of their own
        const QImage picture = program.window().grabWindow();
        const std::vector<int> runs = runsDown(picture, size.width() * 3 / 4, separator);
        EXPECT_EQ(runs, std::vector<int>(rows, 1)) << size.width();
    }
}

TEST(Appearance, titlesStandInTheMiddleOfTheBar) {
    RunningProgram program({390, 844});
    program.clickAll(utf8("constants, User-defined constants"));
    // A long one moves as far as the buttons force it, and no further.
    const QRectF title = frameOfRole(program, QAccessible::Heading, utf8("User-defined constants"));
    const QRectF back = program.frameInWindow(program.item(utf8("Back to Constants")));
    const QRectF edit = program.frameInWindow(program.item(utf8("Edit")));
    EXPECT_FALSE(title.intersects(back) || title.intersects(edit));
    program.clickAll(utf8("More, Settings"));
    EXPECT_NEAR(frameOfRole(program, QAccessible::Heading, utf8("Settings")).center().x(), 195, 1);
}

TEST(Appearance, noticesCoverNeitherBarNorLineNorNewestRow) {
    for (const QSize size : {QSize(320, 480), QSize(375, 667), QSize(768, 1024)}) {
        RunningProgram program(size);
        const auto refuse = [&] {
            QGuiApplication::clipboard()->setText(utf8("no line: ?"));
            program.press(Qt::Key_V, Qt::ControlModifier);
            const auto notices = program.items(QAccessible::AlertMessage);
            EXPECT_EQ(notices.size(), 1U);
            const QRectF frame = notices.empty() ? QRectF() : program.frameInWindow(notices.front());
            EXPECT_TRUE(QRectF(QPointF(), QSizeF(size)).contains(frame)) << size.width();
            EXPECT_FALSE(frame.intersects(program.frameInWindow(program.item(utf8("Line"))))) << size.width();
            return frame;
        };
        program.type(utf8("1+1"));
        program.press(Qt::Key_Return);
        program.takePicture(utf8("notice-calculator-%1").arg(size.width()));
        EXPECT_FALSE(refuse().intersects(program.frameInWindow(program.item(utf8("1+1 is 2")))));
        program.takePicture(utf8("notice-calculator-%1").arg(size.width()));
        program.click(utf8("Equations"));
        program.click(utf8("y1(x)= empty"));
        EXPECT_FALSE(refuse().intersects(program.frameInWindow(program.item(utf8("Clear+Save")))));
        program.takePicture(utf8("notice-editor-%1").arg(size.width()));
    }
}

TEST(Appearance, focusIsMarkedOnceAKeyHasMovedIt) {
    RunningProgram program;
    const auto* marks =
        program.window().engine()->singletonInstance<FocusMarks*>(qmlTypeId("Velmora", 1, 0, "FocusMarks"));
    ASSERT_NE(marks, nullptr);
    program.click(utf8("7"));
    program.type(utf8("8"));
    EXPECT_FALSE(marks->isShown());
    program.press(Qt::Key_Tab);
    EXPECT_TRUE(marks->isShown());
    program.click(utf8("9"));
    EXPECT_FALSE(marks->isShown());
}

} // namespace velmora
