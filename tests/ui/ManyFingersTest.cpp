// Several fingers at once, in any order, on every screen.

#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"
#include "platform/machine/Alert.h"

#include <QPointingDevice>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <optional>
#include <random>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

/// Five fingers of which any number goes down, moves or leaves in one frame.
class Fingers {
public:
    Fingers(RunningProgram& program, unsigned seed) : m_program(program), m_random(seed) {}

    void randomFrame() {
        QTest::QTouchEventSequence frame = QTest::touchEvent(&m_program.window(), m_program.touchScreen());
        for (std::size_t finger = 0; finger < m_places.size(); ++finger) {
            step(frame, int(finger), m_places.at(finger));
        }
        frame.commit();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    void lift() {
        QTest::QTouchEventSequence frame = QTest::touchEvent(&m_program.window(), m_program.touchScreen());
        for (std::size_t finger = 0; finger < m_places.size(); ++finger) {
            if (m_places.at(finger)) {
                frame.release(int(finger), *m_places.at(finger));
                m_places.at(finger).reset();
            }
        }
        frame.commit();
    }

private:
    int below(int bound) { return int(m_random() % unsigned(bound)); }
    QPoint anywhere() { return {below(m_program.window().width()), below(m_program.window().height())}; }

    void step(QTest::QTouchEventSequence& frame, int finger, std::optional<QPoint>& place) {
        const int choice = below(10);
        if (!place) {
            if (choice < 4) {
                place = anywhere();
                frame.press(finger, *place);
            }
        } else if (choice < 4) {
            frame.release(finger, *place);
            place.reset();
        } else if (choice < 6) {
            *place += QPoint(below(61) - 30, below(61) - 30);
            frame.move(finger, *place);
        } else {
            frame.stationary(finger);
        }
    }

    RunningProgram& m_program;
    std::minstd_rand m_random;
    std::array<std::optional<QPoint>, 5> m_places;
};

} // namespace

// Each sequence once ended the program.
TEST(ManyFingers, oneLeavesAndAnotherComesInOneFrame) {
    RunningProgram program;
    program.click(utf8("Equations"));
    const QPoint first = program.pointOf(program.item(utf8("y1(x)= empty")));
    const QPoint third = program.pointOf(program.item(utf8("y3(x)= empty")));
    const auto frame = [&] { return QTest::touchEvent(&program.window(), program.touchScreen()); };
    frame().press(0, first).commit();
    frame().stationary(0).press(1, first).commit();
    frame().release(0, first).stationary(1).commit();
    frame().stationary(1).press(2, third).commit();
    frame().release(1, first).stationary(2).commit();
    frame().release(2, third).press(3, third).commit();
    frame().release(3, third).commit();
    program.settle();
    EXPECT_TRUE(program.isOnScreen(utf8("Back to Cancel"))) << "the taps counted";
}

TEST(ManyFingers, someLeaveWhileTheScreenChangesUnderThem) {
    RunningProgram program;
    const auto frame = [&] { return QTest::touchEvent(&program.window(), program.touchScreen()); };
    const QPoint tab = program.pointOf(program.item(utf8("Equations")));
    const QPoint history(100, 100);
    frame().press(0, tab).commit();
    frame().stationary(0).press(1, history).commit();
    frame().release(0, tab).stationary(1).commit();
    program.settle();
    const QPoint row = program.pointOf(program.item(utf8("y1(x)= empty")));
    frame().stationary(1).press(2, row).commit();
    frame().release(1, history).release(2, row).commit();
    program.settle();
    EXPECT_TRUE(program.isOnScreen(utf8("Back to Cancel")));
}

TEST(ManyFingers, twoThumbsTypeInTurn) {
    RunningProgram program;
    const auto frame = [&] { return QTest::touchEvent(&program.window(), program.touchScreen()); };
    const QPoint seven = program.pointOf(program.item(utf8("7")));
    const QPoint eight = program.pointOf(program.item(utf8("8")));
    frame().press(0, seven).commit();
    frame().stationary(0).press(1, eight).commit();
    frame().release(0, seven).stationary(1).commit();
    frame().press(0, seven).stationary(1).commit();
    frame().stationary(0).release(1, eight).commit();
    frame().release(0, seven).commit();
    program.settle();
    EXPECT_EQ(program.line(), utf8("787"));
}

// VELMORA_FINGER_FRAMES asks for more frames, VELMORA_FINGER_SEED for others.
TEST(ManyFingers, randomTouchesEndNoScreen) {
    const int frames = qEnvironmentVariableIntValue("VELMORA_FINGER_FRAMES");
    const int seed = qEnvironmentVariableIntValue("VELMORA_FINGER_SEED");
    RunningProgram program;
    Fingers fingers(program, seed > 0 ? unsigned(seed) : 20);
    constexpr int framesAVisit = 40;
    const std::array<const char*, 6> tabs{"Calculator", "Equations", "Graph",
                                          "Reference",  "More",      "Calculator"};
    for (int frame = 0; frame < (frames > 0 ? frames : 1500); ++frame) {
        if (frame % framesAVisit == 0) {
            // From wherever the fingers have led: answer what is asked, and on to the next tab.
            fingers.lift();
            program.settle();
            while (program.application().alerts().isShown()) {
                program.application().alerts().choose(0);
            }
            program.settle();
            program.click(utf8(tabs.at(std::size_t(frame / framesAVisit) % tabs.size())));
        }
        fingers.randomFrame();
    }
    fingers.lift();
    while (program.application().alerts().isShown()) {
        program.application().alerts().choose(0);
    }
    program.settle();
    for (const QQuickItem* tab : program.items(QAccessible::PageTab)) { // a heading may have that name, too
        if (program.spokenName(tab) == utf8("Calculator")) {
            program.clickAt(program.pointOf(tab));
        }
    }
    for (int pushed = 0; pushed < 5 && !program.isOnScreen(utf8("Line")); ++pushed) {
        program.press(Qt::Key_Escape); // leaves what the touches have opened
    }
    EXPECT_TRUE(program.isOnScreen(utf8("Line"))) << "and it still works";
}

} // namespace velmora
