// The unit converter and the date calculator as a person works them, on the real screens.

#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"
#include "tools/units/UnitConverterModel.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

class ToolScreens : public testing::TestWithParam<QSize> {
protected:
    ToolScreens() {
        // Turning the window turns the tablet.
        Model::m().setOrientationMode(2);
        program.resize(GetParam() + QSize(1, 0));
        program.resize(GetParam());
    }
    /// Names pictures by the size of the window.
    void picture(const char* name) {
        program.takePicture(utf8(name) + u'-' + QString::number(GetParam().width()) + u'x' +
                            QString::number(GetParam().height()));
    }
    /// The wheel of that name, whatever it shows.
    QQuickItem* wheel(const char* name) {
        QQuickItem* found = wheelIn(program.window().rootObject(), utf8(name) + u',');
        EXPECT_TRUE(found) << "no wheel " << name;
        return found;
    }
    QQuickItem* wheelIn(QQuickItem* item, const QString& start) {
        if (item->inherits("QQuickTumbler") && program.spokenName(item).startsWith(start)) {
            return item;
        }
        for (QQuickItem* child : item->childItems()) {
            if (QQuickItem* found = wheelIn(child, start)) {
                return found;
            }
        }
        return nullptr;
    }
    QString chosen(const char* name) {
        QTest::qWait(250); // until it rests
        const QQuickItem* item = wheel(name);
        return item != nullptr ? program.spokenName(item).section(QStringLiteral(", "), 1) : QString();
    }
    /// A point of a row that stands so many rows below the middle.
    QPoint row(const char* name, double below) {
        const QQuickItem* item = wheel(name);
        if (item == nullptr) {
            return {};
        }
        const double rows = item->property("visibleItemCount").toInt();
        return program.pointOf(item, 0.5, 0.5 + below / rows);
    }
    void expectWithinTheScreen() {
        const QRectF window(QPointF(), QSizeF(program.window().size()));
        for (const QQuickItem* item : program.items(QAccessible::Button)) {
            EXPECT_TRUE(window.adjusted(-1, -1, 1, 1).contains(program.frameInWindow(item)))
                << program.spokenName(item).toStdString();
        }
    }

    RunningProgram program{GetParam()};
};

TEST_P(ToolScreens, unitsAreConverted) {
    program.click(utf8("unit converter"));
    picture("units");
    expectWithinTheScreen();
    EXPECT_TRUE(program.isOnScreen(utf8("meter")) && program.isOnScreen(utf8("1 meter")));
    program.drag(row("From", 1), row("From", -1.3)); // past the second row: it snaps
    EXPECT_EQ(chosen("From"), utf8("centimeter"));
    program.clickAt(row("To", 1));
    EXPECT_EQ(chosen("To"), utf8("kilometer"));
    program.wheel(row("To", 0), -3);
    EXPECT_EQ(chosen("To"), utf8("inch"));
    program.wheel(row("To", 0), 1);
    EXPECT_EQ(chosen("To"), utf8("millimeter"));
    program.clickAll(utf8("2, decimal point, 5, times ten to the power of, 3, 1, delete"));
    EXPECT_TRUE(program.isOnScreen(utf8("25000 millimeters")));
    program.touch(utf8("change sign"));
    EXPECT_TRUE(program.isOnScreen(utf8("-2.5E3 centimeters")));
    picture("units-typed");
    program.click(utf8("Swap units"));
    EXPECT_TRUE(program.isOnScreen(utf8("-2.5E3 millimeters")));
    EXPECT_EQ(chosen("From") + u' ' + chosen("To"), utf8("millimeter centimeter"));

    QTest::mouseClick(&program.window(), Qt::RightButton, Qt::NoModifier,
                      program.pointOf(program.item(utf8("-250 centimeters"))));
    program.settle();
    picture("units-copy");
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("-250 centimeters"));

    program.click(utf8("clear"));
    program.type(utf8("1.2.3"));
    EXPECT_TRUE(program.isOnScreen(utf8("Only 1.2 of it is a number.")));
    picture("units-fault");
    program.press(Qt::Key_Return);
    program.press(Qt::Key_Return); // answers the alert
    EXPECT_EQ(chosen("From"), utf8("millimeter")) << "still open";
    program.press(Qt::Key_Backspace);
    program.press(Qt::Key_Backspace);
    program.press(Qt::Key_Return);
    EXPECT_EQ(program.line(), utf8("(0.12)"));
}

TEST_P(ToolScreens, wheelsAreTurnedByKeysAndAScreenReader) {
    program.click(utf8("unit converter"));
    wheel("Quantity")->forceActiveFocus(Qt::TabFocusReason);
    program.type(utf8("te"));
    EXPECT_EQ(chosen("Quantity"), utf8("Temperature"));
    picture("units-temperature");
    EXPECT_TRUE(program.isOnScreen(utf8("0 degrees Celsius")));
    program.press(Qt::Key_End);
    EXPECT_EQ(chosen("Quantity"), utf8("Activity"));
    program.press(Qt::Key_Home);
    program.press(Qt::Key_Down);
    EXPECT_EQ(chosen("Quantity"), utf8("Area"));
    program.type(utf8("7")); // which no quantity begins with
    EXPECT_TRUE(program.isOnScreen(utf8("7 square meters")));
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(wheel("From"));
    ASSERT_TRUE(spoken && spoken->actionInterface());
    spoken->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    spoken->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    spoken->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(chosen("From"), utf8("square kilometer"));
}

TEST_P(ToolScreens, theConverterIsThereAgainWhereItWasLeftOpen) {
    program.click(utf8("unit converter"));
    wheel("Quantity")->forceActiveFocus(Qt::TabFocusReason);
    program.type(utf8("m"));
    EXPECT_EQ(chosen("Quantity"), utf8("Mass"));
    program.clickAt(row("To", 1));
    EXPECT_EQ(chosen("To"), utf8("gram"));
    program.window().hide(); // into the background
    program.settle();
    UnitConverterModel::resetForTests();
    program.startAgain();
    EXPECT_EQ(chosen("Quantity") + u' ' + chosen("From") + u' ' + chosen("To"), utf8("Mass kilogram gram"));
    program.click(utf8("Cancel"));
    EXPECT_FALSE(Model::m().unitConverterIsPushed());
    program.click(utf8("unit converter"));
    program.click(utf8("Settings"));
    picture("units-settings");
    program.click(utf8("More"));
}

TEST_P(ToolScreens, fiveFingersDoNoHarm) {
    program.click(utf8("unit converter"));
    QTest::touchEvent(&program.window(), program.touchScreen())
        .press(0, row("Quantity", 1))
        .press(1, row("From", 1))
        .press(2, row("To", 1))
        .press(3, program.pointOf(program.item(utf8("5"))))
        .press(4, program.pointOf(program.item(utf8("clear"))))
        .commit();
    for (int step = 1; step < 12; ++step) {
        QTest::touchEvent(&program.window(), program.touchScreen())
            .move(0, row("Quantity", 1) - QPoint(0, 6 * step))
            .move(1, row("From", 1) - QPoint(0, 5 * step))
            .move(2, row("To", 1) + QPoint(0, 3 * step))
            .stationary(3)
            .stationary(4)
            .commit();
        QTest::qWait(10);
    }
    QTest::touchEvent(&program.window(), program.touchScreen())
        .release(0, row("Quantity", 0))
        .release(1, row("From", 0))
        .release(2, row("To", 0))
        .release(3, program.pointOf(program.item(utf8("5"))))
        .release(4, program.pointOf(program.item(utf8("clear"))))
        .commit();
    QTest::qWait(600);
    // Whatever it came to, what is shown is what is converted.
    const UnitConverterModel& model = UnitConverterModel::ucm();
    EXPECT_TRUE(chosen("Quantity") == utf8("Length") ||
                chosen("Quantity").toStdString() == model.selectedQuantityName());
    program.click(utf8("Cancel"));
}

TEST_P(ToolScreens, daysAreCountedBetweenDates) {
    program.click(utf8("Reference"));
    program.scrollTo(utf8("Date calculator"));
    program.click(utf8("Date calculator"));
    picture("dates");
    EXPECT_TRUE(program.isOnScreen(utf8("0 weeks")));
    wheel("From year")->forceActiveFocus(Qt::TabFocusReason);
    program.type(utf8("2024"));
    EXPECT_EQ(chosen("From year"), utf8("2024"));
    wheel("From month")->forceActiveFocus(Qt::TabFocusReason);
    program.type(utf8("f"));
    wheel("From day")->forceActiveFocus(Qt::TabFocusReason);
    program.press(Qt::Key_End);
    EXPECT_EQ(chosen("From day"), utf8("29"));
    const std::pair<const char*, const char*> second[] = {
        {"To year", "2025"}, {"To month", "mar"}, {"To day", "1"}};
    for (const auto& [name, typed] : second) {
        wheel(name)->forceActiveFocus(Qt::TabFocusReason);
        program.type(utf8(typed));
    }
    EXPECT_TRUE(program.isOnScreen(utf8("Thursday, 29 February 2024")));
    EXPECT_TRUE(program.isOnScreen(utf8("Saturday, 1 March 2025")));
    program.clickAt(row("From year", 1)); // 2025, which has no such day
    EXPECT_EQ(chosen("From day"), utf8("28"));
    program.drag(row("From year", -1), row("From year", 0));
    EXPECT_EQ(chosen("From year"), utf8("2024"));
    picture("dates-chosen");
    program.scrollTo(utf8("Count the last day too"));
    program.click(utf8("Count the last day too"));
    picture("dates-end");
    program.scrollTo(utf8("368 days"));
    program.click(utf8("368 days"));
    EXPECT_EQ(program.line(), utf8("(368)"));
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ToolScreens, testing::Values(QSize(320, 480), QSize(390, 844), QSize(768, 1024), QSize(1024, 768)),
    [](const auto& size) {
        return "at" + std::to_string(size.param.width()) + "x" + std::to_string(size.param.height());
    });

} // namespace
} // namespace velmora
