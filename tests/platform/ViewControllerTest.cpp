#include "platform/ViewController.h"

#include "tests/platform/RecordingScreen.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

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
