// The real scene with fifty rows of history, worked by events: what each step costs until its frame stands.

#include "bench/screen/StepMeasure.h"
#include "ui/Application.h"

#include <QGuiApplication>
#include <QPointingDevice>
#include <QQuickItem>
#include <QTest>

#include <cstdio>

namespace {

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

    velmora::StepMeasure bench(window);
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
