#include "platform/machine/ShakeDetector.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace velmora {
namespace {

constexpr double kGravity = 9.80665;

/// How many shakes are told while the device lies flat and swings along x, read fifty times a second.
int shakesWhile(double amplitude, double swingsPerSecond, double seconds) {
    ShakeDetector detector;
    int shakes = 0;
    for (int i = 0; i < 50; ++i) {
        shakes += detector.accelerationRead({0, 0, kGravity}, i / 50.0) ? 1 : 0;
    }
    for (int i = 0; i < static_cast<int>(seconds * 50); ++i) {
        const double x = amplitude * std::sin(std::numbers::pi * swingsPerSecond * i / 50.0);
        shakes += detector.accelerationRead({x, 0, kGravity}, 1 + i / 50.0) ? 1 : 0;
    }
    return shakes;
}

TEST(ShakeDetector, TellsAShakeFromOtherMotion) {
    EXPECT_EQ(shakesWhile(25, 8, 0.8), 1);  // a hand shakes four times a second to and fro
    EXPECT_EQ(shakesWhile(25, 8, 0.25), 0); // one jerk to and fro
    EXPECT_EQ(shakesWhile(6, 4, 30), 0);    // a brisk walk
    EXPECT_EQ(shakesWhile(25, 2, 30), 0);   // slow heaves
    EXPECT_EQ(shakesWhile(25, 8, 5.9), 4);  // once in each second and a half
}

TEST(ShakeDetector, TurningOverAndBrokenReadingsAreNoShake) {
    ShakeDetector turning;
    ShakeDetector broken;
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    for (int i = 0; i < 500; ++i) {
        const double angle = i / 50.0 * std::numbers::pi; // once round in two seconds
        EXPECT_FALSE(
            turning.accelerationRead({kGravity * std::sin(angle), 0, kGravity * std::cos(angle)}, i / 50.0));
        EXPECT_FALSE(broken.accelerationRead({nothing, i % 2 == 0 ? 1e300 : -1e300, 0}, i / 50.0));
        EXPECT_FALSE(broken.accelerationRead({0, i % 2 == 0 ? 1e300 : -1e300, 0}, i / 50.0));
    }
}

} // namespace
} // namespace velmora
