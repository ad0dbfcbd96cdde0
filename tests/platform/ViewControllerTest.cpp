#include "platform/ViewController.h"

#include "tests/platform/RecordingScreen.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ViewController, pressesBarButtonsAsAUserCan) {
    Events events;
    RecordingScreen screen("a", events);
    int presses = 0;
    const auto swap = [&] {
        screen.setRightBarButtons({}); // frees the action that is running
        ++presses;
    };
    screen.setRightBarButtons(
        {{"Swap", swap}, {"Disabled", [&] { presses += 100; }, false}, {"Nothing", {}}});
    EXPECT_FALSE(screen.pressRightBarButton(1) || screen.pressRightBarButton(3) ||
                 screen.pressLeftBarButton(0));
    EXPECT_TRUE(screen.pressRightBarButton(2) && screen.pressRightBarButton(0));
    EXPECT_EQ(presses, 1);
}

} // namespace
} // namespace velmora
