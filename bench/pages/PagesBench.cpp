// Opens every page in the real program, then scrolls the longest by touch. With arguments WIDTH HEIGHT the
// window has that size, with "large" behind them the large fonts; VELMORA_SCREENSHOTS names a folder for
// pictures of the pages, screen by screen, and VELMORA_PAGE the only page to open.

#include "bench/screen/StepMeasure.h"
#include "calculator/model/Model.h"
#include "calculator/pages/Page.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/screens/TabBarController.h"
#include "ui/Application.h"

#include <QDir>
#include <QGuiApplication>
#include <QPointingDevice>
#include <QQuickItem>
#include <QTest>

#include <cstdio>

namespace {

using velmora::processorMilliseconds;

constexpr double kLongestOpening = 100; // milliseconds
constexpr double kLongestStep = 8;

/// The first item that scrolls, below the given one.
QQuickItem* scrollingItem(QQuickItem* item) {
    if (item->inherits("QQuickFlickable")) {
        return item;
    }
    for (QQuickItem* child : item->childItems()) {
        QQuickItem* found = child->isVisible() ? scrollingItem(child) : nullptr;
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

void takePictures(QQuickView& window, const std::string& name) {
    const QString folder = qEnvironmentVariable("VELMORA_SCREENSHOTS");
    QQuickItem* page = scrollingItem(window.rootObject());
    if (folder.isEmpty() || page == nullptr || !QDir().mkpath(folder)) {
        return;
    }
    const double end = page->property("contentHeight").toDouble() - page->height();
    double y = 0;
    for (int number = 1;; ++number) {
        page->setProperty("contentY", std::clamp(y, 0.0, std::max(end, 0.0)));
        QTest::qWait(20);
        window.grabWindow().save(
            QStringLiteral("%1/%2-%3.png").arg(folder, QString::fromStdString(name)).arg(number));
        if (y >= end) {
            return;
        }
        y += page->height() * 0.9;
    }
}

/// The time until the page stands on the screen.
double opened(QQuickView& window, velmora::NavigationController& stack, const std::string& name) {
    bool isPainted = false;
    const auto connection =
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] { isPainted = true; });
    const double start = processorMilliseconds();
    stack.push(velmora::ScreenRegistry::shared().make(name + "Page"), false);
    const bool came = QTest::qWaitFor([&] { return isPainted; }, 2000);
    const double cost = processorMilliseconds() - start;
    QObject::disconnect(connection);
    return came ? cost : 2000;
}

/// Drags up and down over the whole page.
bool scrollingIsFast(QQuickView& window) {
    velmora::StepMeasure bench(window);
    QPointingDevice* finger = QTest::createTouchDevice();
    constexpr int stepsAStroke = 40;
    constexpr int pointsAStep = 5;
    const int bottom = window.height() * 7 / 10;
    const auto place = [&](int step) {
        const int way = pointsAStep * (step % stepsAStroke);
        const bool isUp = step / stepsAStroke % 2 == 0;
        return QPoint(window.width() - 8, isUp ? bottom - way : bottom - pointsAStep * stepsAStroke + way);
    };
    return bench.measure(
        "scrolling",
        [&](int step) {
            if (step % stepsAStroke == 0) {
                if (step > 0) {
                    QTest::touchEvent(&window, finger).release(0, place(step - 1)).commit();
                }
                QTest::touchEvent(&window, finger).press(0, place(step)).commit();
                const int direction = step / stepsAStroke % 2 == 0 ? -1 : 1;
                for (int point = 1; point <= 3; ++point) { // beyond what a resting finger trembles
                    QTest::touchEvent(&window, finger)
                        .move(0, place(step) + QPoint(0, 4 * direction * point))
                        .commit();
                }
            }
            const int direction = step / stepsAStroke % 2 == 0 ? -14 : 14;
            QTest::touchEvent(&window, finger).move(0, place(step) + QPoint(0, direction)).commit();
        },
        kLongestStep);
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication qtApplication(argc, argv);
    velmora::Application application;
    QQuickView& window = application.window();
    if (argc >= 3) {
        window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
        velmora::Model::m().setLargeFontsOnPhone(argc >= 4);
        velmora::Model::m().setOrientationMode(2);
    }
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return 1;
    }
    constexpr std::size_t referenceTab = 3;
    const auto tabs = velmora::Model::m().tabBarController();
    tabs->setSelectedIndex(referenceTab);
    QTest::qWait(300);
    auto& stack = dynamic_cast<velmora::NavigationController&>(*tabs->viewControllers()[referenceTab]);

    double longest = 0;
    double highest = 0;
    std::string slowest;
    std::string longestPage;
    const std::string only = qEnvironmentVariable("VELMORA_PAGE").toStdString();
    for (const std::string& name : velmora::pageNames()) {
        if (!only.empty() && name != only) {
            continue;
        }
        const double cost = opened(window, stack, name);
        if (cost > longest) {
            longest = cost;
            slowest = name;
        }
        QTest::qWait(1);
        takePictures(window, name);
        const QQuickItem* page = scrollingItem(window.rootObject());
        if (page != nullptr && page->property("contentHeight").toDouble() > highest) {
            highest = page->property("contentHeight").toDouble();
            longestPage = name;
        }
        stack.pop(false);
        QTest::qWait(1);
    }
    std::printf("%zu pages, the slowest (%s) opens in %.1f ms\n", velmora::pageNames().size(),
                slowest.c_str(), longest);
    opened(window, stack, longestPage);
    QTest::qWait(100);
    std::printf("scrolling the longest page (%s, %.0f points)\n", longestPage.c_str(), highest);
    const bool isSmooth = scrollingIsFast(window);
    return longest < kLongestOpening && isSmooth ? 0 : 1;
}
