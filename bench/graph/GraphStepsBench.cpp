// The graph on the real scene, panned and pinched by real touches: what each step costs until its frame
// stands.

#include "bench/screen/StepMeasure.h"
#include "calculator/model/Model.h"
#include "engine/lines/Token.h"
#include "graphing/screen/GraphViewController.h"
#include "platform/screens/TabBarController.h"
#include "ui/Application.h"

#include <QGuiApplication>
#include <QPointingDevice>
#include <QTest>

#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

using namespace velmora;

struct Scene {
    const char* name;
    std::array<const char*, 4> equations; ///< tokens with blanks between them
    bool isPolar = false;
    double range = 10; ///< of x and y to either side
};
constexpr double kAllowed = 8; // milliseconds, for 95 of 100 steps

constexpr Scene kOrdinary{"ordinary",
                          {"sin( x ) / x", "x ^ 3 / 20 - x", "tan( x )", "e ^ ( - x ^ 2 ) * cos( 5 * x )"}};
constexpr std::array kDense{
    Scene{"steep", {"tan( 100 * x )", "sin( 100 * x )", "1 / ( x - 1 ) ^ 2", "x ^ 21"}},
    Scene{"wild", {"sin( 1 / x )", "x ^ x", "e ^ ( 1 / x )", "sin( 1000 * x ) * 9"}},
    Scene{"endless", {"tan( 10000 * x )", "1E300 * x", "1 / sin( 300 * x )", "tan( x ^ 3 )"}},
    Scene{"10 sin(50x)", {"10 * sin( 50 * x )"}},
    Scene{"10 sin(x^2)", {"10 * sin( x ^ 2 )"}},
    Scene{"tan(20x)", {"tan( 20 * x )"}},
    Scene{"tan, sin(100x)", {"tan( 100 * x )", "sin( 100 * x )"}},
    Scene{"8 sin(200t)", {"8 * sin( 200 * θ )"}, true},
    Scene{"10 sin(1E6x)", {"10 * sin( 1E6 * x )"}},
    Scene{"10 sin(x) far", {"10 * sin( x )"}, false, 1e6},
    Scene{"four of them",
          {"10 * sin( 1E6 * x )", "8 * sin( 1E6 * x )", "tan( 1E5 * x )", "10 * sin( 1E5 * x ^ 2 )"}},
};

void show(const Scene& scene) {
    Model& model = Model::m();
    model.setGraphType(scene.isPolar ? 1 : 0);
    ExpressionList& list = scene.isPolar ? model.polarR() : model.equations();
    for (std::size_t slot = 0; slot < scene.equations.size(); ++slot) {
        TokenArray tokens;
        std::istringstream stream(scene.equations.at(slot) ? scene.equations.at(slot) : "");
        for (std::string text; stream >> text;) {
            tokens.emplace_back(Token(text));
        }
        list.setExpressionAtIndex(static_cast<int>(slot), ExpressionWithTokenArray(tokens), true);
    }
    model.resetGraphBounds();
    if (scene.range != kOrdinary.range) {
        model.setXMinForGraph(-scene.range);
        model.setXMaxForGraph(scene.range);
    }
    const auto tabBar = model.tabBarController();
    constexpr int graphTab = 2;
    tabBar->setSelectedIndex(0);
    tabBar->setSelectedIndex(graphTab);
    QTest::qWait(100);
}

double megabytesInUse() {
    std::ifstream statistics("/proc/self/statm");
    long total = 0;
    long resident = 0;
    statistics >> total >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Until the scene is complete at rest: at most a second of the processor and 20 MB.
bool complete(const Scene& scene) {
    const double memory = megabytesInUse();
    const double start = processorMilliseconds();
    show(scene);
    const auto tabs = Model::m().tabBarController();
    const auto graph = std::dynamic_pointer_cast<GraphViewController>(tabs->selectedViewController());
    constexpr int patience = 20000;
    const bool isComplete = QTest::qWaitFor([&] { return graph->graphView().isRefined(); }, patience);
    const double cost = processorMilliseconds() - start;
    const double more = megabytesInUse() - memory;
    std::printf("%-24s complete %s: %.0f ms of the processor, %.1f MB more\n", scene.name,
                isComplete ? "yes" : "no", cost, more);
    constexpr double second = 1000;
    constexpr double mostMegabytes = 20;
    return isComplete && cost <= second && more <= mostMegabytes;
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication qtApplication(argc, argv);
    Application application;
    QQuickView& window = application.window();
    if (argc > 1 && std::string_view(argv[1]) == "tablet") {
        window.resize(1024, 768);
    }
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return 1;
    }
    std::printf("%d by %d pixels\n", int(window.width() * window.devicePixelRatio()),
                int(window.height() * window.devicePixelRatio()));
    StepMeasure bench(window);
    QPointingDevice* fingers = QTest::createTouchDevice();
    const QPoint middle(window.width() / 2, window.height() * 2 / 5);

    const auto pan = [&](const std::string& name) {
        const auto place = [&](int step) {
            return middle + QPoint(int(90 * std::sin(step * 0.11)), int(90 * std::sin(step * 0.07)));
        };
        QTest::touchEvent(&window, fingers).press(0, place(0)).commit();
        const bool isFast = bench.measure(
            name.c_str(),
            [&](int step) {
                // at least two points, so that each step moves the graph
                const QPoint shift(0, step % 2 == 0 ? 3 : -3);
                QTest::touchEvent(&window, fingers).move(0, place(step) + shift).commit();
            },
            kAllowed);
        QTest::touchEvent(&window, fingers).release(0, middle).commit();
        return isFast;
    };
    const auto pinch = [&](const std::string& name) {
        QTest::touchEvent(&window, fingers)
            .press(0, middle - QPoint(30, 30))
            .press(1, middle + QPoint(30, 30))
            .commit();
        const bool isFast = bench.measure(
            name.c_str(),
            [&](int step) {
                const int spread = step % 2 == 0 ? 55 : 30;
                QTest::touchEvent(&window, fingers)
                    .move(0, middle - QPoint(spread, spread))
                    .move(1, middle + QPoint(spread, spread))
                    .commit();
            },
            kAllowed);
        QTest::touchEvent(&window, fingers).release(0, middle).release(1, middle).commit();
        return isFast;
    };

    show(kOrdinary);
    bool isFast = pan("panning ordinary");
    isFast = pinch("pinching ordinary") && isFast;
    for (const Scene& scene : kDense) {
        isFast = complete(scene) && isFast;
        isFast = pan(std::string("panning ") + scene.name) && isFast;
        isFast = pinch(std::string("pinching ") + scene.name) && isFast;
    }
    constexpr double longestStep = 16;
    return isFast && bench.longest() < longestStep ? 0 : 1;
}
