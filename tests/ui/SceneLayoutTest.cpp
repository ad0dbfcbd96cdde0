#include "ui/adapters/SceneLayout.h"

#include <gtest/gtest.h>

namespace velmora {

TEST(SceneLayout, fitsThePhoneOrTabletIntoTheWindow) {
    constexpr auto upright = Orientation::Portrait;
    constexpr auto onItsSide = Orientation::LandscapeLeft;
    struct Case {
        Size window;
        DeviceClass device;
        Orientation orientation;
        Size scene;
        double scale;
        Point origin;
    };
    const Case cases[] = {
        {{320, 568}, DeviceClass::Phone, upright, {320, 568}, 1, {0, 0}},
        {{640, 1136}, DeviceClass::Phone, upright, {320, 568}, 2, {0, 0}},
        {{400, 1000}, DeviceClass::Phone, upright, {320, 800}, 1.25, {0, 0}},
        // Too wide: the smallest phone, between black sides.
        {{960, 480}, DeviceClass::Phone, upright, {320, 480}, 1, {320, 0}},
        {{768, 1024}, DeviceClass::Tablet, upright, {768, 1024}, 1, {0, 0}},
        {{1024, 768}, DeviceClass::Tablet, onItsSide, {1024, 768}, 1, {0, 0}},
        // Held on its side, but allowed upright only, and the other way round.
        {{1024, 768}, DeviceClass::Tablet, upright, {768, 1024}, 0.75, {224, 0}},
        {{768, 1024}, DeviceClass::Tablet, onItsSide, {1024, 768}, 0.75, {0, 224}},
        // Nearly square: the keyboard alone would leave no room for a history.
        {{660, 660}, DeviceClass::Tablet, upright, {660, 880}, 0.75, {82.5, 0}},
        {{0, 500}, DeviceClass::Phone, upright, {0, 0}, 1, {0, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.window.width << " by " << c.window.height);
        const SceneLayout layout = sceneLayout(c.window, c.device, c.orientation);
        EXPECT_DOUBLE_EQ(layout.size.width, c.scene.width);
        EXPECT_DOUBLE_EQ(layout.size.height, c.scene.height);
        EXPECT_DOUBLE_EQ(layout.scale, c.scale);
        EXPECT_DOUBLE_EQ(layout.origin.x, c.origin.x);
        EXPECT_DOUBLE_EQ(layout.origin.y, c.origin.y);
    }
}

TEST(SceneLayout, takesTheDeviceFromTheShortestSide) {
    EXPECT_EQ(deviceClassOfWindow({600, 600}), DeviceClass::Tablet);
    EXPECT_EQ(deviceClassOfWindow({599, 2000}), DeviceClass::Phone);
    EXPECT_EQ(deviceClassOfWindow({2000, 599}), DeviceClass::Phone);
    EXPECT_EQ(orientationOfWindow({700, 700}), Orientation::Portrait);
    EXPECT_EQ(orientationOfWindow({701, 700}), Orientation::LandscapeLeft);
}

} // namespace velmora
