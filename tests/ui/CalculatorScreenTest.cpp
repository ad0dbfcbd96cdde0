// The calculator as a person works it, on every geometry of the keyboard.

#include "tests/ui/RunningProgram.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/TabBarController.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

constexpr int kBothOrientations = 2;

QString utf8(const char* text) { return QString::fromUtf8(text); }

/// Lines into the history, the plain way.
void fillHistory(RunningProgram& program, int rows) {
    for (int row = 0; row < rows; ++row) {
        program.type(QString::number(row) + utf8("+1"));
        program.press(Qt::Key_Return);
    }
}

/// Rests on a point for as long as holds something.
void hold(RunningProgram& program, QPoint point) {
    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, point);
    QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 200);
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, point);
    program.settle();
}

struct Geometry {
    int number;
    QSize window;
    bool largeFonts;
    int displayMode;
};

class CalculatorScreen : public testing::TestWithParam<Geometry> {
protected:
    CalculatorScreen() {
        model.setLargeFontsOnPhone(GetParam().largeFonts);
        model.setDisplayMode(GetParam().displayMode);
        model.setOrientationMode(kBothOrientations);
        program.resize(GetParam().window);
        EXPECT_EQ(model.keyboardGeometry(), GetParam().number);
    }
    /// Every key shown has a name of its own, is large enough and whole, and overlaps no other.
    void expectWholeKeys() {
        const QRectF window(QPointF(), QSizeF(GetParam().window));
        std::vector<QRectF> frames;
        QStringList names;
        for (const QQuickItem* key : program.items(QAccessible::Button)) {
            names.append(program.spokenName(key));
            SCOPED_TRACE(names.last().toStdString());
            EXPECT_FALSE(names.last().isEmpty());
            EXPECT_EQ(names.count(names.last()), 1);
            const QRectF frame = program.frameInWindow(key);
            EXPECT_TRUE(window.contains(frame));
            EXPECT_GE(std::min(frame.width(), frame.height()), 24);
            EXPECT_TRUE(std::ranges::none_of(
                frames, [&](const QRectF& other) { return other.adjusted(1, 1, -1, -1).intersects(frame); }));
            frames.push_back(frame);
        }
        EXPECT_TRUE(names.contains(utf8("square root")));
    }

    RunningProgram program{{360, 600}};
    Model& model = Model::m();
};

INSTANTIATE_TEST_SUITE_P(Geometries, CalculatorScreen,
                         testing::Values(Geometry{4, {320, 568}, false, 1}, Geometry{4, {412, 915}, false, 1},
                                         Geometry{3, {375, 667}, true, 1}, Geometry{1, {768, 1024}, false, 1},
                                         Geometry{0, {768, 1024}, false, 0},
                                         Geometry{2, {1024, 768}, false, 1}),
                         [](const auto& info) {
                             return "g" + std::to_string(info.param.number) + "w" +
                                    std::to_string(info.param.window.width());
                         });

TEST_P(CalculatorScreen, isWorkedByMouseAndFinger) {
    for (const auto tap : {&RunningProgram::click, &RunningProgram::touch}) {
        const auto press = [&](std::initializer_list<const char*> names) {
            for (const char* name : names) {
                (program.*tap)(utf8(name));
            }
            return program.line();
        };
        EXPECT_EQ(press({"2", "times", "left parenthesis", "3", "plus", "4"}), utf8("2*(3+4"));
        EXPECT_EQ(press({"right parenthesis", "to the power of", "2"}), utf8("2*(3+4)^2"));
        EXPECT_EQ(press({"equals"}), QString());
        EXPECT_EQ(press({"minus", "1", "cursor left", "delete", "plus"}), utf8("+_1"));
        EXPECT_EQ(press({"clear", "plus", "1", "equals"}), QString());
        EXPECT_EQ(program.historyRows(), (QStringList{utf8("2*(3+4)^2 is 98"), utf8("ans+1 is 99")}));
        // Of the first row.
        EXPECT_EQ(press({"insert expression", "plus", "insert result"}), utf8("2*(3+4)^2+(98)"));
        EXPECT_EQ(press({"functions", "Roots and logarithms", "square root, sqrt()"}),
                  utf8("2*(3+4)^2+(98)sqrt("));
        program.takePicture(QStringLiteral("worked-g%1").arg(GetParam().number));
        press({"clear", "clear"});
        EXPECT_EQ(program.historyRows().size(), 2);
        press({"clear"});
        EXPECT_EQ(program.historyRows(), QStringList());
    }
}

TEST_P(CalculatorScreen, isWholeInEveryModeAndArrangement) {
    ExpressionList* const targets[] = {
        nullptr, &model.equations(),       &model.parametricX(), &model.polarR(),
        nullptr, &model.impliedFunctions()};
    auto& tabs = *program.application().delegate().tabBarController();
    const auto stack = std::dynamic_pointer_cast<NavigationController>(tabs.selectedViewController());
    for (int entering = 0; entering <= 5; ++entering) {
        for (int arrangement = 0; arrangement <= 1; ++arrangement) {
            const QString name = QStringLiteral("g%1-%2-mode%3-%4")
                                     .arg(GetParam().number)
                                     .arg(GetParam().window.width())
                                     .arg(entering)
                                     .arg(arrangement);
            SCOPED_TRACE(name.toStdString());
            model.setWhichKeyboard(arrangement);
            auto keyboard = std::make_shared<KeyboardViewController>(entering);
            keyboard->setTarget(targets[entering]);
            stack->push(keyboard, false);
            program.settle();
            program.window().grabWindow(); // the bar is laid out with the next frame
            expectWholeKeys();
            program.type(utf8("2*(3"));
            EXPECT_TRUE(program.isOnScreen(utf8("right parenthesis")));
            program.takePicture(name);
            if (entering > 0) {
                program.click(utf8("Clear+Save")); // stores the empty line and leaves
            }
            stack->pop(false);
            program.settle();
        }
    }
}

TEST(CalculatorKeys, actWhenTheirFingerLeavesThem) {
    RunningProgram program;
    const QPoint seven = program.pointOf(program.item(utf8("7")));
    const QPoint eight = program.pointOf(program.item(utf8("8")));
    // Sliding off cancels.
    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, seven);
    QTest::mouseMove(&program.window(), eight);
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, eight);
    program.settle();
    EXPECT_EQ(program.line(), QString());
    // Two fingers, the second leaving first.
    QPointingDevice* screen = program.touchScreen();
    QTest::touchEvent(&program.window(), screen).press(0, seven).commit();
    QTest::touchEvent(&program.window(), screen).stationary(0).press(1, eight).commit();
    QTest::touchEvent(&program.window(), screen).stationary(0).release(1, eight).commit();
    QTest::touchEvent(&program.window(), screen).release(0, seven).commit();
    program.settle();
    EXPECT_EQ(program.line(), utf8("87"));
    hold(program, seven); // however long it rested
    EXPECT_EQ(program.line(), utf8("877"));
}

TEST(EntryLine, takesTheCursorAndOffersToCopy) {
    RunningProgram program;
    program.type(utf8("123+45"));
    const QQuickItem* line = program.item(utf8("Line"));
    program.clickAt(program.pointOf(line, 0.3)); // the sign of the angle mode stands further left
    program.click(utf8("9"));
    EXPECT_EQ(program.line(), utf8("9_123+45"));
    // Between two characters: a character's width from the right end.
    program.clickAt(program.pointOf(line, 1 - textWidth("5", 17) / line->width()));
    EXPECT_EQ(program.line(), utf8("9123+4_5"));
    program.clickAt(program.pointOf(line, 0.999));
    EXPECT_EQ(program.line(), utf8("9123+45"));

    const auto openMenu = [&] {
        QTest::mouseDClick(&program.window(), Qt::LeftButton, Qt::NoModifier, program.pointOf(line, 0.9));
        program.settle();
        EXPECT_TRUE(program.isOnScreen(utf8("Copy")));
    };
    openMenu();
    program.takePicture(utf8("edit-menu"));
    program.click(utf8("Copy"));
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("9123+45"));
    openMenu();
    program.clickAt({20, 20});
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));

    program.press(Qt::Key_Escape);
    program.type(utf8("7*8"));
    program.press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("7*8"));
    QGuiApplication::clipboard()->setText(utf8("+1,234.5×2"));
    program.press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(program.line(), utf8("7*8+1234.5*2"));
    program.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(program.line(), utf8("7*8"));
    program.press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    openMenu(); // a tap of it has set the cursor
    program.press(Qt::Key_End);
    program.click(utf8("Paste"));
    EXPECT_EQ(program.line(), utf8("7*8+1234.5*2+1234.5*2"));
    EXPECT_TRUE(program.items(QAccessible::AlertMessage).empty());
    QGuiApplication::clipboard()->setText(utf8("3,5"));
    program.press(Qt::Key_V, Qt::ControlModifier); // no line; that is told
    EXPECT_EQ(program.line(), utf8("7*8+1234.5*2+1234.5*2"));
    EXPECT_EQ(program.items(QAccessible::AlertMessage).size(), 1U);
    program.takePicture(utf8("notice"));
}

TEST(HardwareKeyboard, pressesTheKeysOfTheSameMeaning) {
    RunningProgram program;
    program.type(utf8("12*(3"));
    struct Case {
        Qt::Key key;
        const char* line;
    };
    const Case cases[] = {{Qt::Key_Return, "12*(3)"}, // closes the parenthesis first
                          {Qt::Key_Left, "12*(3_)"},  {Qt::Key_Backspace, "12*(_)"}, {Qt::Key_Home, "_12*()"},
                          {Qt::Key_Delete, "_2*()"},  {Qt::Key_Right, "2_*()"},      {Qt::Key_End, "2*()"},
                          {Qt::Key_Escape, ""}};
    for (const Case& c : cases) {
        program.press(c.key);
        EXPECT_EQ(program.line(), utf8(c.line)) << c.key;
    }
    program.click(utf8("Calculator")); // the tab
    program.click(utf8("5"));
    program.press(Qt::Key_Tab); // walks through the controls; letters still reach the line
    program.press(Qt::Key_Tab);
    program.type(utf8("+6"));
    program.press(Qt::Key_Enter);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("5+6 is 11")});
}

TEST(History, rowsAreReusedAndCopied) {
    RunningProgram program;
    program.type(utf8("2sin(pi/6)^2"));
    program.press(Qt::Key_Return);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("2sin(π/6)^2 is 0.5")});
    const auto end = [&](double across) {
        return program.pointOf(program.items(QAccessible::ListItem).at(0), across);
    };
    QTest::mouseClick(&program.window(), Qt::RightButton, Qt::NoModifier, end(0.9));
    program.settle();
    program.takePicture(utf8("copy-from-row"));
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("0.4999999999999999")); // in full
    hold(program, end(0.1));
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("2sin(π/6)^2"));
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
    program.clickAt(end(0.5)); // between the ends lies nothing
    EXPECT_EQ(program.line(), QString());

    Model::m().setNHasBecomeActive(20); // now the tip is the first row, and counts as none
    program.resize({376, 667});
    EXPECT_TRUE(program.isOnScreen(utf8("TIP:  Settings are available on the \"More\" tab.")));
    program.takePicture(utf8("tip"));
    program.clickAt(end(0.9));
    EXPECT_EQ(program.line(), utf8("(0.5)")); // a value, whatever it looks like
}

TEST(History, standsOnTheEntryLineAndScrolls) {
    RunningProgram program;
    const QQuickItem* entry = program.item(utf8("Line"));
    const auto expectLowestRowOnTheLine = [&] {
        program.settle();
        double bottom = 0;
        for (const QQuickItem* row : program.items(QAccessible::ListItem)) {
            bottom = std::max(bottom, program.frameInWindow(row).bottom());
        }
        EXPECT_NEAR(bottom, program.frameInWindow(entry).top(), 1);
    };
    fillHistory(program, 1);
    expectLowestRowOnTheLine();
    fillHistory(program, 49);
    expectLowestRowOnTheLine();
    EXPECT_TRUE(program.historyRows().contains(utf8("48+1 is 49")));
    program.takePicture(utf8("history-50"));

    const QQuickItem* list = program.items(QAccessible::List).at(0);
    for (int notch = 0; notch < 60 && !program.historyRows().contains(utf8("0+1 is 1")); ++notch) {
        program.wheel(program.pointOf(list), 3);
    }
    EXPECT_TRUE(program.historyRows().contains(utf8("0+1 is 1")));
    for (const double across : {0.5, 0.1}) { // also from the end of a row, which is a button
        const QStringList before = program.historyRows();
        program.drag(program.pointOf(list, across, 0.9), program.pointOf(list, across, 0.1));
        EXPECT_NE(program.historyRows(), before);
        EXPECT_EQ(program.line(), QString());
    }
    program.type(utf8("7+7"));
    program.press(Qt::Key_Return);
    EXPECT_TRUE(program.historyRows().contains(utf8("7+7 is 14"))); // a new result comes into view
}

TEST(Window, resizingExchangesTheDeviceAndKeepsTheLine) {
    RunningProgram program({375, 667});
    program.type(utf8("12+3"));
    program.press(Qt::Key_Return);
    program.type(utf8("2*(3"));
    struct Case {
        int width, height;
        DeviceClass device;
        bool upright;
        int orientationMode;
    };
    using enum DeviceClass;
    const Case cases[] = {{320, 480, Phone, true, 0},    {412, 915, Phone, true, 0},
                          {768, 1024, Tablet, true, 0},  {1024, 768, Tablet, true, 0}, // as settings start
                          {1025, 768, Tablet, false, 2}, {768, 1024, Tablet, true, 2},
                          {700, 700, Tablet, false, 1},  {640, 400, Phone, true, 2}};
    for (const Case& c : cases) {
        const QString name =
            QStringLiteral("window-%1x%2-%3").arg(c.width).arg(c.height).arg(c.orientationMode);
        SCOPED_TRACE(name.toStdString());
        Model::m().setOrientationMode(c.orientationMode);
        program.resize({c.width, c.height});
        EXPECT_EQ(currentDevice().deviceClass(), c.device);
        EXPECT_EQ(screenMetrics().screenSize().height > screenMetrics().screenSize().width, c.upright);
        EXPECT_EQ(program.line(), utf8("2*(3"));
        EXPECT_EQ(program.historyRows(), QStringList{utf8("12+3 is 15")});
        program.takePicture(name);
    }
    program.click(utf8("right parenthesis"));
    EXPECT_EQ(program.line(), utf8("2*(3)"));
}

} // namespace
} // namespace velmora
