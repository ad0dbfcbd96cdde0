// What a screen costs that is opened for the first time since the program's start, until its frame stands.

#include "bench/screen/StepMeasure.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "platform/events/ActionScope.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "ui/Application.h"

#include <QGuiApplication>
#include <QTest>

#include <cstdio>

int main(int argc, char** argv) {
    QGuiApplication qtApplication(argc, argv);
    if (argc != 2) {
        std::fputs("usage: opening_bench SCREEN\n", stderr);
        return 2;
    }
    velmora::Application application;
    QQuickView& window = application.window();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return 1;
    }
    QTest::qWait(300);

    int frames = 0;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&frames] { ++frames; });
    const double start = velmora::processorMilliseconds();
    {
        const velmora::ActionScope action;
        auto screen = velmora::ScreenRegistry::shared().make(argv[1]);
        if (!screen) {
            return 2;
        }
        application.delegate().calculator()->navigationController()->push(std::move(screen));
    }
    constexpr int patienceMilliseconds = 2000;
    const bool isPainted = QTest::qWaitFor([&] { return frames > 0; }, patienceMilliseconds);
    const double cost = velmora::processorMilliseconds() - start;
    constexpr double limit = 100;
    std::printf("%-32s %s after %.1f ms\n", argv[1], isPainted ? "painted" : "not painted", cost);
    return isPainted && cost < limit ? 0 : 1;
}
