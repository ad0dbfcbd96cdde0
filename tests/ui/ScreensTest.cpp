// The lists, equations, settings and help as a person works them, on the real screens.

#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"
#include "platform/screens/ScreenMetrics.h"
#include "platform/screens/ScreenRegistry.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

class Screens : public testing::TestWithParam<QSize> {
protected:
    RunningProgram program{GetParam()};
    /// Names pictures by the size of the window.
    void picture(const char* name) {
        program.takePicture(utf8(name) + u'-' + QString::number(GetParam().width()) + u'x' +
                            QString::number(GetParam().height()));
    }
    /// The first settings allow no other orientation, whatever screen shows when the window turns.
    void expectUprightInATurnedWindow() {
        program.resize(GetParam().transposed());
        const Size scene = screenMetrics().screenSize();
        EXPECT_GT(scene.height, scene.width);
        program.resize(GetParam());
    }
    void openSettings() {
        program.click(utf8("More"));
        program.click(utf8("Settings"));
    }
    /// Types into the field of a settings row and presses Enter.
    void enter(const char* field, const char* text) {
        program.click(utf8(field));
        QTest::keySequence(&program.window(), QKeySequence::SelectAll);
        for (const char* c = text; *c != 0; ++c) {
            QTest::keyClick(&program.window(), *c);
        }
        program.press(Qt::Key_Return);
    }
};

TEST_P(Screens, listsPutTheirEntriesIntoTheLine) {
    program.click(utf8("functions"));
    picture("functions");
    EXPECT_FALSE(program.isOnScreen(utf8("Bessel functions"))) << "which have no values";
    program.click(utf8("Roots and logarithms"));
    picture("functions-roots");
    program.touch(utf8("cube root; of a negative number the real one, cbrt()"));
    EXPECT_EQ(program.line(), utf8("cbrt("));
    program.click(utf8("constants"));
    picture("constants");
    program.click(utf8("Universal"));
    picture("constants-universal");
    program.click(utf8("speed of light in vacuum, m/s, c = 299792458 m/s"));
    EXPECT_EQ(program.line(), utf8("cbrt(c"));
    program.click(utf8("trigonometric functions"));
    program.click(utf8("Degrees"));
    EXPECT_EQ(Model::m().angleMode(), 1);
    picture("trigonometry");
    program.press(Qt::Key_Down);
    program.click(utf8("sine, sin()"));
    EXPECT_EQ(program.line(), utf8("cbrt(csin("));
}

TEST_P(Screens, aConstantIsNamedDefinedAndUsed) {
    program.click(utf8("constants"));
    program.click(utf8("User-defined constants"));
    program.click(utf8("Edit"));
    for (const char* row : {"12", "20", "28", "36", "40"}) { // rows are made as they come into view
        program.scrollTo(utf8("k%1 from user-defined constants, k%1").arg(utf8(row)));
    }
    const double place =
        program.frameInWindow(program.item(utf8("k40 from user-defined constants, k40"))).y();
    program.click(utf8("k40 from user-defined constants, k40"));
    picture("constant");
    enter("Name", "mass");
    program.click(utf8("Value, not defined"));
    picture("constant-value");
    program.type(utf8("12/5"));
    program.press(Qt::Key_Return);
    picture("constant-defined");
    program.click(utf8("Back to User-defined constants"));
    program.click(utf8("Done"));
    picture("own-constants");
    const QString defined = utf8("k40 from user-defined constants, mass = 12/5");
    EXPECT_NEAR(program.frameInWindow(program.item(defined)).y(), place, 1) << "the list is where it was";
    program.click(defined);
    program.press(Qt::Key_Return);
    EXPECT_EQ(program.historyRows(), QStringList{utf8("mass is 2.4")});
}

TEST_P(Screens, equationsAreEditedSavedAndRefused) {
    program.click(utf8("Equations"));
    picture("equations-empty");
    program.touch(utf8("y1(x)= empty"));
    picture("editor");
    program.type(utf8("2x^3-x/5+1"));
    program.press(Qt::Key_Return);
    EXPECT_TRUE(program.isOnScreen(utf8("y1(x)=2x^3-x/5+1")));
    program.click(utf8("y2(x)= empty"));
    program.type(utf8("y1(x)+1"));
    program.press(Qt::Key_Return);
    program.click(utf8("y1(x)=2x^3-x/5+1"));
    program.type(utf8("+y2(x)"));
    program.press(Qt::Key_Return);
    EXPECT_TRUE(program.isOnScreen(utf8("Recursion found.")));
    picture("recursion");
    program.click(utf8("OK"));
    program.click(utf8("Back to Cancel"));
    EXPECT_TRUE(program.isOnScreen(utf8("y1(x)=2x^3-x/5+1")));
    program.click(utf8("y3(x)= empty"));
    program.type(QString(40, u'8'));
    picture("editor-long");
    program.clickAt(program.pointOf(program.item(utf8("Line")), 0.999, 0.38)); // where the first line ends
    const QString cursorAtBreak = program.line();
    EXPECT_TRUE(cursorAtBreak.contains(u'_')) << cursorAtBreak.toStdString();
    program.clickAt(program.pointOf(program.item(utf8("Line")), 0.001, 0.62)); // the second begins there
    EXPECT_EQ(program.line(), cursorAtBreak);
    program.click(utf8("Clear+Save"));
    for (const char* text : {"sin(x)/x", "x"}) {
        program.click(utf8(text[0] == 's' ? "y3(x)= empty" : "y4(x)= empty"));
        program.type(utf8(text));
        program.press(Qt::Key_Return);
    }
    picture("equations");
    program.click(utf8("y4(x)=x"));
    program.click(utf8("Clear+Save"));
    EXPECT_TRUE(program.isOnScreen(utf8("y4(x)= empty")));
    Model::m().setGraphType(2);
    program.settle();
    picture("equations-parametric");
    program.click(utf8("x1(t)= empty"));
    program.type(utf8("cos(3t)"));
    program.press(Qt::Key_Return);
    program.click(utf8("Range"));
    picture("range");
    enter("Ending t", "6.5");
    EXPECT_EQ(Model::m().tEndForParametricGraph(), 6.5);
    program.click(utf8("Back to Parametric Equations"));
    EXPECT_TRUE(program.isOnScreen(utf8("x1(t)=cos(3t)")));
    Model::m().setGraphType(1);
    program.settle();
    program.click(utf8("r2(θ)= empty"));
    program.type(utf8("2"));
    program.press(Qt::Key_Return);
    EXPECT_TRUE(program.isOnScreen(utf8("r2(θ)=2")));
    picture("equations-polar");
    program.click(utf8("Range")); // which functions have no use for
    openSettings();
    Model::m().setGraphType(0);
    program.click(utf8("Equations"));
    EXPECT_TRUE(program.isOnScreen(utf8("y1(x)=2x^3-x/5+1")));
}

TEST_P(Screens, everythingIsThereAgainAfterAKillInTheBackground) {
    program.type(utf8("2/3"));
    program.press(Qt::Key_Return);
    program.click(utf8("Equations"));
    program.click(utf8("y3(x)= empty"));
    program.type(utf8("x^2"));
    program.press(Qt::Key_Return);
    openSettings();
    enter("Display decimal places", "3");
    program.window().hide(); // into the background
    program.settle();
    Model::m().setDisplayDigits(9); // lost: nothing is saved at other moments
    program.startAgain();
    EXPECT_TRUE(program.isOnScreen(utf8("Display decimal places"))) << "it comes back to the tab that showed";
    program.click(utf8("Equations"));
    EXPECT_TRUE(program.isOnScreen(utf8("y3(x)=x^2")));
    program.click(utf8("Calculator"));
    EXPECT_EQ(program.historyRows(), QStringList{utf8("2/3 is 0.667")});
    EXPECT_TRUE(Model::m().settingsHaveBeenAccessed());
    EXPECT_EQ(Model::m().nHasBecomeActive(), 2);
}

TEST_P(Screens, helpIsRead) {
    program.click(utf8("More"));
    picture("more");
    expectUprightInATurnedWindow();
    program.click(utf8("Help"));
    picture("help");
    program.click(utf8("Getting started"));
    picture("page");
    EXPECT_TRUE(program.isOnScreen(utf8("Open parentheses")));
    program.scrollTo(utf8("Open parentheses"));
    const double place = program.frameInWindow(program.item(utf8("Open parentheses"))).y();
    const QPoint heading = program.pointOf(program.item(utf8("Open parentheses")), 0.05);
    QTest::mouseClick(&program.window(), Qt::RightButton, Qt::NoModifier, heading);
    program.settle();
    picture("page-menu");
    program.click(utf8("Copy"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), utf8("Open parentheses"));
    EXPECT_FALSE(program.isOnScreen(utf8("Copy")));
    program.drag(heading, heading - QPoint(0, 60)); // still scrolls
    const double left = program.frameInWindow(program.item(utf8("Open parentheses"))).y();
    EXPECT_EQ(left < place - 20, GetParam().width() < 600) << "a tablet shows the whole page";
    program.click(utf8("Calculator"));
    program.click(utf8("More"));
    program.click(utf8("Help"));
    EXPECT_NEAR(program.frameInWindow(program.item(utf8("Open parentheses"))).y(), left, 1);
    program.click(utf8("Back to Help"));
    program.click(utf8("Back to More"));
    EXPECT_TRUE(program.isOnScreen(utf8("Settings")));
    program.click(utf8("If you like this app"));
    picture("like");
    EXPECT_TRUE(program.isOnScreen(utf8("Back to More")));
}

TEST_P(Screens, everySettingIsChangedOnItsRow) {
    Model& model = Model::m();
    openSettings();
    EXPECT_TRUE(model.settingsHaveBeenAccessed());
    picture("settings");
    struct Switch {
        const char* title;
        bool (ModelSettings::*get)() const;
        bool after;
    };
    const Switch switches[] = {{"Trailing zeroes", &Model::trailingZeroes, true},
                               {"Commas in numbers", &Model::commasInNumbers, true},
                               {"Button click sound", &Model::soundIsOn, true},
                               {"Graph Labels", &Model::putLabelsOnGraph, false},
                               {"Shake to Reset", &Model::shakeToResetGraph, false},
                               {"Same scale X&Y", &Model::sameScaleXAndY, true},
                               {"Black", &Model::graphBackgroundIsBlack, true}};
    for (const Switch& row : switches) {
        program.scrollTo(utf8(row.title));
        program.touch(utf8(row.title));
        EXPECT_EQ((model.*row.get)(), row.after) << row.title;
    }
    EXPECT_TRUE(program.isOnScreen(utf8("Max Y is set for same scale")));
    program.scrollTo(utf8("Same scale X&Y"));
    program.click(utf8("Same scale X&Y"));
    struct Pick {
        const char* row;
        const char* choice;
        int (ModelSettings::*get)() const;
        int after;
    };
    const Pick picks[] = {{"Angles, Radians", "Degrees", &Model::angleMode, 1},
                          {"Type of Graph, function", "polar", &Model::graphType, 1},
                          {"Grid Lines, Close together", "Far apart", &Model::graphGridLineType, 1}};
    for (const Pick& row : picks) {
        program.scrollTo(utf8(row.row));
        const double place = program.frameInWindow(program.item(utf8(row.row))).y();
        program.click(utf8(row.row));
        picture(row.choice);
        expectUprightInATurnedWindow();
        program.click(utf8(row.choice));
        EXPECT_EQ((model.*row.get)(), row.after) << row.row;
        const QString chosen = utf8(row.row).section(u',', 0, 0) + utf8(", ") + utf8(row.choice);
        EXPECT_NEAR(program.frameInWindow(program.item(chosen)).y(), place, 1) << "where it was";
    }
    struct Number {
        const char* title;
        const char* typed;
        const char* key;
        PropertyList after;
    };
    const Number numbers[] = {{"Max digits for decimal notation", "7", "maxDigitsForDecimalNotation", 7},
                              {"Display decimal places", "12", "displayDigits", 12},
                              {"Min X", "-2e-1", "xMinForGraph", -0.2},
                              {"Max X", "+3", "xMaxForGraph", 3.0},
                              {"Min Y", "-.5", "yMinForGraph", -0.5},
                              {"Max Y", "7.25", "yMaxForGraph", 7.25}};
    for (const Number& row : numbers) {
        program.scrollTo(utf8(row.title));
        enter(row.title, row.typed);
        EXPECT_EQ(model.valueForKey(row.key), row.after) << row.title;
        for (const char* wrong : {"abc", "13.5.", "1e999"}) {
            enter(row.title, wrong);
            EXPECT_TRUE(program.isOnScreen(utf8("OK"))) << wrong;
            program.press(Qt::Key_Return);
            EXPECT_EQ(model.valueForKey(row.key), row.after) << wrong;
        }
    }
    program.scrollTo(utf8("Display decimal places"));
    enter("Display decimal places", "13");
    picture("refused");
    program.click(utf8("OK"));
    EXPECT_EQ(model.displayDigits(), 12);
    if (GetParam().width() < 600) {
        program.scrollTo(utf8("Large"));
        program.click(utf8("Large"));
        EXPECT_TRUE(model.largeFontsOnPhone());
        EXPECT_FALSE(program.isOnScreen(utf8("Allowed orientations")));
    } else {
        program.scrollTo(utf8("Both"));
        program.click(utf8("Both"));
        EXPECT_EQ(model.orientationMode(), 2);
        program.scrollTo(utf8("Portrait Display, Large Keys"));
        program.click(utf8("Portrait Display, Large Keys"));
        program.click(utf8("Small Keys"));
        EXPECT_EQ(model.displayMode(), 0);
    }
    program.scrollTo(utf8("About"));
    picture("settings-end");
    const auto buttons = program.items(QAccessible::Button);
    const auto about = std::ranges::find_if(
        buttons, [&](const QQuickItem* button) { return program.spokenName(button) == utf8("About"); });
    ASSERT_NE(about, buttons.end());
    program.clickAt(program.pointOf(*about)); // the section has the same name
    EXPECT_TRUE(program.isOnScreen(utf8("Velmora")));
}

INSTANTIATE_TEST_SUITE_P(Sizes, Screens, testing::Values(QSize(375, 667), QSize(768, 1024)),
                         [](const auto& size) { return size.param.width() < 600 ? "phone" : "tablet"; });

} // namespace
} // namespace velmora
