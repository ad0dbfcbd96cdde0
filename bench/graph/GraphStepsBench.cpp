// The graph on the real scene, panned and pinched by real touches: what each step costs until its frame
// stands.

#include "bench/screen/StepMeasure.h"
#include "calculator/model/Model.h"
#include "engine/lines/Token.h"
#include "platform/screens/TabBarController.h"
#include "ui/Application.h"

#include <QGuiApplication>
#include <QPointingDevice>
#include <QTest>

#include <array>
#include <cmath>
#include <cstdio>
#include <sstream>
#include <string>

namespace {

using namespace velmora;

struct Scene {
    const char* name;
    std::array<const char*, 4> equations; ///< tokens with blanks between them
};
constexpr Scene kOrdinary{"ordinary",
                          {"sin( x ) / x", "x ^ 3 / 20 - x", "tan( x )", "e ^ ( - x ^ 2 ) * cos( 5 * x )"}};
constexpr std::array kHard{
    Scene{"steep", {"tan( 100 * x )", "sin( 100 * x )", "1 / ( x - 1 ) ^ 2", "x ^ 21"}},
    Scene{"wild", {"sin( 1 / x )", "x ^ x", "e ^ ( 1 / x )", "sin( 1000 * x ) * 9"}},
    Scene{"endless", {"tan( 10000 * x )", "1E300 * x", "1 / sin( 300 * x )", "tan( x ^ 3 )"}},
};

void show(const Scene& scene) {
    Model& model = Model::m();
    for (std::size_t slot = 0; slot < scene.equations.size(); ++slot) {
        TokenArray tokens;
        std::istringstream stream(scene.equations.at(slot));
        for (std::string text; stream >> text;) {
            tokens.emplace_back(Token(text));
        }
        model.equations().setExpressionAtIndex(static_cast<int>(slot), ExpressionWithTokenArray(tokens),
                                               true);
    }
    model.resetGraphBounds();
    const auto tabBar = model.tabBarController();
    constexpr int graphTab = 2;
    tabBar->setSelectedIndex(0);
    tabBar->setSelectedIndex(graphTab);
    QTest::qWait(100);
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication qtApplication(argc, argv);
    Application application;
    QQuickView& window = application.window();
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
        const bool isFast = bench.measure(name.c_str(), [&](int step) {
            // at least two points, so that each step moves the graph
            const QPoint shift(0, step % 2 == 0 ? 3 : -3);
            QTest::touchEvent(&window, fingers).move(0, place(step) + shift).commit();
        });
        QTest::touchEvent(&window, fingers).release(0, middle).commit();
        return isFast;
    };
    const auto pinch = [&](const std::string& name) {
        QTest::touchEvent(&window, fingers)
            .press(0, middle - QPoint(30, 30))
            .press(1, middle + QPoint(30, 30))
            .commit();
        const bool isFast = bench.measure(name.c_str(), [&](int step) {
            const int spread = step % 2 == 0 ? 55 : 30;
            QTest::touchEvent(&window, fingers)
                .move(0, middle - QPoint(spread, spread))
                .move(1, middle + QPoint(spread, spread))
                .commit();
        });
        QTest::touchEvent(&window, fingers).release(0, middle).release(1, middle).commit();
        return isFast;
    };

    show(kOrdinary);
    bool isFast = pan("panning ordinary");
    isFast = pinch("pinching ordinary") && isFast;
    for (const Scene& scene : kHard) { // of these only the longest step has a limit
        show(scene);
        pan(std::string("panning ") + scene.name);
        pinch(std::string("pinching ") + scene.name);
    }
    constexpr double longestStep = 50;
    return isFast && bench.longest() < longestStep ? 0 : 1;
}
