#include "tests/ui/RunningProgram.h"

#include "calculator/KeyboardViewController.h"
#include "calculator/Model.h"
#include "platform/NavigationController.h"
#include "platform/TabBarController.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>

#include <gtest/gtest.h>

#include <clocale>

namespace velmora {

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

/// Lines into the history, the plain way.
void fillHistory(RunningProgram& program, int rows) {
    for (int row = 0; row < rows; ++row) {
        program.type(QString::number(row) + utf8("+1"));
        program.press(Qt::Key_Return);
    }
}

} // namespace

enum class Finger { Mouse, Touch };

class CalculatorStory : public testing::TestWithParam<Finger> {
protected:
    void press(const char* key) {
        if (GetParam() == Finger::Mouse) {
            m_program.click(utf8(key));
        } else {
            m_program.touch(utf8(key));
        }
    }
    void press(std::initializer_list<const char*> keys) {
        for (const char* key : keys) {
            press(key);
        }
    }
    RunningProgram m_program;
};

INSTANTIATE_TEST_SUITE_P(Input, CalculatorStory, testing::Values(Finger::Mouse, Finger::Touch),
                         [](const auto& info) { return info.param == Finger::Mouse ? "mouse" : "touch"; });

TEST_P(CalculatorStory, typesEvaluatesContinuesAndClears) {
    struct Step {
        const char* key;
        const char* line;
    };
    const Step steps[] = {
        {"2", "2"},
        {"times", "2*"},
        {"left parenthesis", "2*("},
        {"3", "2*(3"},
        {"plus", "2*(3+"},
        {"4", "2*(3+4"},
        {"right parenthesis", "2*(3+4)"}, // the tall key, while a parenthesis is open
        {"to the power of", "2*(3+4)^"},
        {"2", "2*(3+4)^2"},
    };
    for (const Step& step : steps) {
        press(step.key);
        EXPECT_EQ(m_program.line(), utf8(step.line)) << "after " << step.key;
    }
    m_program.takePicture(utf8("story-typed"));
    press("equals");
    EXPECT_EQ(m_program.line(), QString());
    EXPECT_EQ(m_program.historyRows(), QStringList{utf8("2*(3+4)^2 is 98")});

    press({"plus", "1"});
    EXPECT_EQ(m_program.line(), utf8("ans+1"));
    press("equals");
    EXPECT_EQ(m_program.historyRows(), (QStringList{utf8("2*(3+4)^2 is 98"), utf8("ans+1 is 99")}));
    m_program.takePicture(utf8("story-history"));

    press({"clear", "clear"});
    EXPECT_EQ(m_program.historyRows().size(), 2);
    press("clear");
    EXPECT_EQ(m_program.historyRows(), QStringList());
}

TEST(CalculatorKeys, areCancelledBySlidingOff) {
    RunningProgram program;
    const QPoint seven = program.pointOf(program.item(utf8("7")));
    const QPoint eight = program.pointOf(program.item(utf8("8")));
    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, seven);
    QTest::mouseMove(&program.window(), eight);
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, eight);
    program.settle();
    EXPECT_EQ(program.line(), QString());
}

TEST(CalculatorKeys, takeTwoFingersAtOnce) {
    RunningProgram program;
    const QPoint seven = program.pointOf(program.item(utf8("7")));
    const QPoint eight = program.pointOf(program.item(utf8("8")));
    QPointingDevice* screen = program.touchScreen();
    QTest::touchEvent(&program.window(), screen).press(0, seven).commit();
    QTest::touchEvent(&program.window(), screen).stationary(0).press(1, eight).commit();
    QTest::touchEvent(&program.window(), screen).stationary(0).release(1, eight).commit();
    QTest::touchEvent(&program.window(), screen).release(0, seven).commit();
    program.settle();
    EXPECT_EQ(program.line(), utf8("87")); // a key acts when its finger leaves
}

TEST(CalculatorKeys, actHoweverLongTheFingerRests) {
    RunningProgram program;
    const QPoint seven = program.pointOf(program.item(utf8("7")));
    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, seven);
    QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 200);
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, seven);
    program.settle();
    EXPECT_EQ(program.line(), utf8("7"));
}

TEST(EntryLine, tapSetsTheCursor) {
    RunningProgram program;
    program.type(utf8("123+45"));
    const QQuickItem* line = program.item(utf8("Line"));
    program.clickAt(program.pointOf(line, 0.02));
    EXPECT_EQ(program.line(), utf8("_123+45"));
    program.click(utf8("9"));
    EXPECT_EQ(program.line(), utf8("9_123+45"));
    program.clickAt(program.pointOf(line, 0.999));
    EXPECT_EQ(program.line(), utf8("9123+45"));
    // A tap between two characters: half of the last character's width from the right end, and a bit.
    program.clickAt(program.pointOf(line, 1 - 1.0 * textWidth("5", 17) / line->width()));
    EXPECT_EQ(program.line(), utf8("9123+4_5"));
}

TEST(EntryLine, doubleTapOffersToCopy) {
    RunningProgram program;
    program.type(utf8("2+3"));
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
    const QPoint line = program.pointOf(program.item(utf8("Line")), 0.9);
    QTest::mouseDClick(&program.window(), Qt::LeftButton, Qt::NoModifier, line);
    program.settle();
    program.takePicture(utf8("edit-menu"));
    ASSERT_TRUE(program.isOnScreen(utf8("Copy")));
    program.click(utf8("Copy"));
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), program.line().remove(QLatin1Char('_')));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("2+3"));

    QTest::mouseDClick(&program.window(), Qt::LeftButton, Qt::NoModifier, line);
    program.settle();
    program.clickAt({20, 20});
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
}

TEST(EntryLine, shortcutsCopyAndExplainThatTextIsNotPasted) {
    RunningProgram program;
    program.type(utf8("7*8"));
    program.press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("7*8"));
    QGuiApplication::clipboard()->setText(utf8("1+1"));
    program.press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(program.line(), utf8("7*8"));
    EXPECT_EQ(program.items(QAccessible::AlertMessage).size(), 1U);
    program.takePicture(utf8("notice"));
}

TEST(HardwareKeyboard, pressesTheKeysOfTheSameMeaning) {
    RunningProgram program;
    program.type(utf8("12*(3"));
    EXPECT_EQ(program.line(), utf8("12*(3"));
    program.press(Qt::Key_Return); // closes the parenthesis first
    EXPECT_EQ(program.line(), utf8("12*(3)"));
    struct Case {
        Qt::Key key;
        const char* line;
    };
    const Case cases[] = {
        {Qt::Key_Left, "12*(3_)"}, {Qt::Key_Backspace, "12*(_)"}, {Qt::Key_Home, "_12*()"},
        {Qt::Key_Delete, "_2*()"}, {Qt::Key_Right, "2_*()"},      {Qt::Key_End, "2*()"},
        {Qt::Key_Escape, ""},
    };
    for (const Case& c : cases) {
        program.press(c.key);
        EXPECT_EQ(program.line(), utf8(c.line)) << c.key;
    }
    program.type(utf8("6-4"));
    program.press(Qt::Key_Enter);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("6-4 is 2")});
}

TEST(HardwareKeyboard, worksAfterAClickOnAnyControl) {
    RunningProgram program;
    program.click(utf8("Calculator")); // the tab
    program.click(utf8("5"));
    program.press(Qt::Key_Tab); // walks through the controls; letters still reach the line
    program.press(Qt::Key_Tab);
    program.type(utf8("+6"));
    EXPECT_EQ(program.line(), utf8("5+6"));
    program.press(Qt::Key_Return);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("5+6 is 11")});
}

TEST(History, rowsAreReusedAndCopied) {
    RunningProgram program;
    program.type(utf8("2sin(pi/6)^2+"));
    EXPECT_EQ(program.line(), utf8("2sin(π/6)^2+"));
    program.press(Qt::Key_Backspace);
    program.press(Qt::Key_Return);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("2sin(π/6)^2 is 0.5")});
    const auto end = [&](double across) {
        return program.pointOf(program.items(QAccessible::ListItem).at(0), across);
    };
    QTest::mouseClick(&program.window(), Qt::RightButton, Qt::NoModifier, end(0.9));
    program.settle();
    program.takePicture(utf8("copy-from-row"));
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("0.5"));
    QTest::mousePress(&program.window(), Qt::LeftButton, Qt::NoModifier, end(0.1));
    QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 200);
    QTest::mouseRelease(&program.window(), Qt::LeftButton, Qt::NoModifier, end(0.1));
    program.settle();
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("2sin(π/6)^2"));
    EXPECT_EQ(program.line(), QString());
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
    program.clickAt(end(0.1));
    program.clickAt(end(0.5)); // between the ends lies nothing
    program.press(Qt::Key_End);
    program.type(utf8("+"));
    program.clickAt(end(0.9));
    EXPECT_EQ(program.line(), utf8("2sin(π/6)^2+(0.5)")); // a value, whatever it looks like
}

TEST(History, standsOnTheEntryLineAndScrolls) {
    RunningProgram program;
    fillHistory(program, 1);
    const QQuickItem* entry = program.item(utf8("Line"));
    const auto lowestRow = [&] {
        program.settle();
        double bottom = 0;
        for (const QQuickItem* row : program.items(QAccessible::ListItem)) {
            bottom = std::max(bottom, program.frameInWindow(row).bottom());
        }
        return bottom;
    };
    EXPECT_NEAR(lowestRow(), program.frameInWindow(entry).top(), 1);

    fillHistory(program, 49);
    EXPECT_EQ(Model::m().history().nExpressions(), 50);
    EXPECT_NEAR(lowestRow(), program.frameInWindow(entry).top(), 1);
    EXPECT_TRUE(program.historyRows().contains(utf8("48+1 is 49")));
    program.takePicture(utf8("history-50"));

    const QQuickItem* list = program.items(QAccessible::List).at(0);
    const QPoint middle = program.pointOf(list);
    for (int notch = 0; notch < 60 && !program.historyRows().contains(utf8("0+1 is 1")); ++notch) {
        program.wheel(middle, 3);
    }
    EXPECT_TRUE(program.historyRows().contains(utf8("0+1 is 1")));
    const QStringList before = program.historyRows();
    program.drag(program.pointOf(list, 0.5, 0.9), program.pointOf(list, 0.5, 0.1));
    EXPECT_NE(program.historyRows(), before);
    // Also from the end of a row, which is a button: the drag scrolls and presses nothing.
    const QStringList between = program.historyRows();
    program.drag(program.pointOf(list, 0.1, 0.9), program.pointOf(list, 0.1, 0.1));
    EXPECT_NE(program.historyRows(), between);
    EXPECT_EQ(program.line(), QString());

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
        QSize window;
        DeviceClass device;
        const char* picture;
    };
    const Case cases[] = {
        {{320, 480}, DeviceClass::Phone, "phone-320x480"},
        {{375, 667}, DeviceClass::Phone, "phone-375x667"},
        {{412, 915}, DeviceClass::Phone, "phone-412x915"},
        {{768, 1024}, DeviceClass::Tablet, "tablet-768x1024"},
        {{1024, 768}, DeviceClass::Tablet, "tablet-1024x768"},
        {{700, 700}, DeviceClass::Tablet, "tablet-700x700"},
        {{640, 400}, DeviceClass::Phone, "phone-640x400"},
        {{599, 900}, DeviceClass::Phone, "phone-599x900"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.picture);
        program.resize(c.window);
        EXPECT_EQ(currentDevice().deviceClass(), c.device);
        EXPECT_EQ(program.line(), utf8("2*(3"));
        EXPECT_EQ(program.historyRows(), QStringList{utf8("12+3 is 15")});
        EXPECT_TRUE(program.isOnScreen(utf8("right parenthesis")));
        program.takePicture(utf8(c.picture));
    }
    program.click(utf8("right parenthesis"));
    EXPECT_EQ(program.line(), utf8("2*(3)"));
}

TEST(Window, turnsATabletOnlyAsItsSettingAllows) {
    RunningProgram program({1024, 768});
    program.type(utf8("2*(3"));
    constexpr int both = 2;
    const auto isUpright = [] {
        return screenMetrics().screenSize().height > screenMetrics().screenSize().width;
    };
    EXPECT_TRUE(isUpright()); // upright only, as the settings start
    Model::m().setOrientationMode(both);
    for (const QSize window : {QSize{1025, 768}, QSize{768, 1024}}) {
        program.resize(window);
        EXPECT_EQ(isUpright(), window.height() > window.width());
        EXPECT_EQ(program.line(), utf8("2*(3"));
    }
}

TEST(Window, writesNumbersAlikeInEveryLocale) {
    const QLocale former;
    const std::string formerNumeric = std::setlocale(LC_NUMERIC, nullptr);
    QLocale::setDefault(QLocale(QLocale::German));
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where the machine has it
    {
        RunningProgram program;
        EXPECT_STREQ(std::localeconv()->decimal_point, ".");
        program.clickAll(utf8("1, divided by, 4, equals"));
        program.type(utf8("1234567.5"));
        program.press(Qt::Key_Return);
        EXPECT_EQ(program.historyRows(), (QStringList{utf8("1/4 is 0.25"), utf8("1234567.5 is 1234567.5")}));
    }
    QLocale::setDefault(former);
    std::setlocale(LC_NUMERIC, formerNumeric.c_str());
}

struct GeometryCase {
    int geometry;
    QSize window;
    bool largeFonts;
    int displayMode;
};

TEST(KeyboardScreens, areWholeInEveryGeometryModeAndArrangement) {
    constexpr int bothOrientations = 2;
    for (const GeometryCase& c :
         {GeometryCase{4, {320, 568}, false, 1}, GeometryCase{4, {412, 915}, false, 1},
          GeometryCase{3, {375, 667}, true, 1}, GeometryCase{1, {768, 1024}, false, 1},
          GeometryCase{0, {768, 1024}, false, 0}, GeometryCase{2, {1024, 768}, false, 1}}) {
        RunningProgram program;
        Model& model = Model::m();
        model.setLargeFontsOnPhone(c.largeFonts);
        model.setDisplayMode(c.displayMode);
        model.setOrientationMode(bothOrientations);
        program.resize(c.window);
        ASSERT_EQ(model.keyboardGeometry(), c.geometry);
        ExpressionList* const targets[] = {
            nullptr, &model.equations(),       &model.parametricX(), &model.polarR(),
            nullptr, &model.impliedFunctions()};
        for (int entering = 0; entering <= 5; ++entering) {
            for (int arrangement = 0; arrangement <= 1; ++arrangement) {
                const QString name = QStringLiteral("g%1-%2-mode%3-%4")
                                         .arg(c.geometry)
                                         .arg(c.window.width())
                                         .arg(entering)
                                         .arg(arrangement);
                SCOPED_TRACE(name.toStdString());
                model.setWhichKeyboard(arrangement);
                auto keyboard = std::make_shared<KeyboardViewController>(entering);
                keyboard->setTarget(targets[entering]);
                auto& tabs = *program.application().delegate().tabBarController();
                auto stack = std::dynamic_pointer_cast<NavigationController>(tabs.selectedViewController());
                stack->push(keyboard, false);
                program.settle();
                program.window().grabWindow(); // the bar is laid out with the next frame
                const QRectF window(QPointF(), QSizeF(c.window));
                std::vector<QRectF> frames;
                QStringList names;
                for (const QQuickItem* key : program.items(QAccessible::Button)) {
                    names.append(program.spokenName(key));
                    EXPECT_FALSE(names.last().isEmpty());
                    EXPECT_EQ(names.count(names.last()), 1) << names.last().toStdString();
                    const QRectF frame = program.frameInWindow(key);
                    EXPECT_TRUE(window.contains(frame)) << names.last().toStdString();
                    EXPECT_GE(std::min(frame.width(), frame.height()), 24) << names.last().toStdString();
                    EXPECT_TRUE(std::ranges::none_of(frames, [&](const QRectF& other) {
                        return other.adjusted(1, 1, -1, -1).intersects(frame);
                    })) << names.last().toStdString();
                    frames.push_back(frame);
                }
                EXPECT_TRUE(names.contains(utf8("square root")));
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
}

TEST(Tip, isTheFirstRowAndCountsAsNone) {
    RunningProgram program;
    program.type(utf8("2*3"));
    program.press(Qt::Key_Return);
    Model::m().setNHasBecomeActive(20);
    program.resize({376, 667});
    program.clickAt(program.pointOf(program.items(QAccessible::ListItem).at(0), 0.1));
    EXPECT_EQ(program.line(), utf8("2*3"));
    EXPECT_TRUE(program.isOnScreen(utf8("TIP:  Settings are available on the \"More\" tab.")));
    program.takePicture(utf8("tip"));
}

} // namespace velmora
