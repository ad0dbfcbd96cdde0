// The real scene with fifty rows of history, worked by events: what each step costs until its frame stands.

#include "ui/Application.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QQuickItem>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

namespace {

constexpr int kSteps = 300;
constexpr double kFrameMilliseconds = 16;

/// The time that the processor has worked for the program. The wait for the next frame is none of it, and
/// neither is what other programs do meanwhile.
double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

class ScreenBench {
public:
    explicit ScreenBench(QQuickView& window) : m_window(window) {
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { ++m_frames; });
    }

    /// Runs the steps and prints what they cost. False when the 95th of a hundred takes longer than a frame,
    /// or when a step was not painted.
    bool measure(const char* name, const std::function<void(int)>& step) {
        std::vector<double> costs;
        int unpainted = 0;
        for (int i = 0; i < kSteps; ++i) {
            const int before = m_frames;
            const double start = processorMilliseconds();
            step(i);
            if (!QTest::qWaitFor([&] { return m_frames > before; }, kPatienceMilliseconds)) {
                ++unpainted;
            }
            costs.push_back(processorMilliseconds() - start);
        }
        std::ranges::sort(costs);
        const auto percentile = [&](int percent) { return costs[costs.size() * std::size_t(percent) / 100]; };
        std::printf(
            "%-10s %d steps, %d unpainted: median %.2f ms, 95th percentile %.2f ms, longest %.2f ms\n", name,
            kSteps, unpainted, percentile(50), percentile(95), costs.back());
        return unpainted == 0 && percentile(95) < kFrameMilliseconds;
    }

private:
    static constexpr int kPatienceMilliseconds = 500;

    QQuickView& m_window;
    int m_frames = 0;
};

void typeText(QQuickView& window, const QString& text) {
    for (const QChar character : text) {
        QTest::sendKeyEvent(QTest::Click, &window, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication qtApplication(argc, argv);
    velmora::Application application;
    QQuickView& window = application.window();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return 1;
    }
    constexpr int rows = 50;
    for (int row = 0; row < rows; ++row) {
        typeText(window, QStringLiteral("%1+12345.678*sqrt(%1)/7").arg(row + 1));
        QTest::keyClick(&window, Qt::Key_Return);
    }
    QTest::qWait(300);
    std::printf("%d by %d pixels\n", int(window.width() * window.devicePixelRatio()),
                int(window.height() * window.devicePixelRatio()));

    ScreenBench bench(window);
    QPointingDevice* finger = QTest::createTouchDevice();
    // The digits, the point and the parenthesis: three columns from the second on, four rows.
    const auto pointOfKey = [&](int step) {
        const int column = 1 + step % 3;
        const int row = step / 3 % 4;
        return QPoint(window.width() * (2 * column + 1) / 10, window.height() * (126 + 15 * row) / 200);
    };
    bool isFast = bench.measure("keys", [&](int step) {
        const QPoint place = pointOfKey(step);
        QTest::touchEvent(&window, finger).press(0, place).commit();
        QTest::touchEvent(&window, finger).release(0, place).commit();
    });

    constexpr int pointsAStep = 5;
    constexpr int stepsAStroke = 40;
    const int bottom = window.height() * 35 / 100;
    const auto place = [&](int step) {
        const int stroke = step / stepsAStroke;
        const int way = pointsAStep * (step % stepsAStroke);
        return QPoint(window.width() / 2, stroke % 2 == 0 ? bottom - 200 + way : bottom - way);
    };
    // Down first, for the newest row is in view.
    isFast = bench.measure("scrolling", [&](int step) {
        if (step % stepsAStroke == 0) {
            if (step > 0) {
                QTest::touchEvent(&window, finger).release(0, place(step - 1)).commit();
            }
            QTest::touchEvent(&window, finger).press(0, place(step)).commit();
            for (int point = 1; point <= 3; ++point) { // beyond what a resting finger trembles
                QTest::touchEvent(&window, finger)
                    .move(0, place(step) + QPoint(0, (step / stepsAStroke % 2 == 0 ? 4 : -4) * point))
                    .commit();
            }
        }
        QTest::touchEvent(&window, finger)
            .move(0, place(step) + QPoint(0, step / stepsAStroke % 2 == 0 ? 14 : -14))
            .commit();
    }) && isFast;
    return isFast ? 0 : 1;
}
