#include "platform/ViewController.h"

#include "tests/platform/RecordingScreen.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ViewController, tellsOnlyOfRealChanges) {
    Events events;
    RecordingScreen screen("a", events);
    int changes = 0;
    const Subscription subscription = screen.changed().subscribe([&] { ++changes; });
    struct Step {
        std::function<void()> run;
        int changes;
    };
    const Step steps[] = {
        {[&] { screen.setTitle("Graph"); }, 1},
        {[&] { screen.setTitle("Graph"); }, 1},
        {[&] { screen.setHidesNavigationBar(true); }, 2},
        {[&] { screen.setHidesNavigationBar(true); }, 2},
        {[&] {
             screen.setRightBarButtons({{"Save", {}}});
         },
         3},
    };
    for (const Step& step : steps) {
        step.run();
        EXPECT_EQ(changes, step.changes);
    }
}

TEST(ViewController, fallsBackToItsTitle) {
    Events events;
    RecordingScreen screen("a", events);
    screen.setTitle("Polynomial Solvers");
    EXPECT_EQ(screen.tabTitle(), "Polynomial Solvers");
    EXPECT_EQ(screen.backButtonTitle(), "Polynomial Solvers");
    screen.setTabTitle("Solvers");
    screen.setBackButtonTitle("Back");
    EXPECT_EQ(screen.tabTitle(), "Solvers");
    EXPECT_EQ(screen.backButtonTitle(), "Back");
}

TEST(ViewController, pressesBarButtonsAsAUserCan) {
    Events events;
    RecordingScreen screen("a", events);
    int presses = 0;
    screen.setRightBarButtons({
        {"Swap",
         [&] {
             ++presses;
             screen.setRightBarButtons({}); // frees the action that is running
             ++presses;
         }},
        {"Disabled", [&] { presses += 100; }, false},
        {"Nothing", {}},
    });
    EXPECT_FALSE(screen.pressRightBarButton(1));
    EXPECT_TRUE(screen.pressRightBarButton(2));
    EXPECT_FALSE(screen.pressRightBarButton(3));
    EXPECT_FALSE(screen.pressLeftBarButton(0));
    EXPECT_TRUE(screen.pressRightBarButton(0));
    EXPECT_EQ(presses, 2);
}

} // namespace
} // namespace velmora
