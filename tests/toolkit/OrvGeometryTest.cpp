#include "toolkit/OrvGeometry.h"

#include <gtest/gtest.h>

#include <ostream>

namespace velmora {

// Makes failures readable.
static void PrintTo(const Rect& rect, std::ostream* stream) {
    *stream << rect.x << ", " << rect.y << ", " << rect.width << " x " << rect.height;
}

namespace {

constexpr Rect kOuter{10, 20, 100, 50};

TEST(OrvGeometry, holdsEachPointInOneOfTwoAdjoiningRectangles) {
    const Rect next{110, 20, 100, 50};
    struct PointCase {
        Point point;
        bool inOuter;
        bool inNext;
    };
    const PointCase cases[] = {
        {{10, 20}, true, false},     {{109.99, 69.99}, true, false}, {{110, 20}, false, true},
        {{110, 69.99}, false, true}, {{50, 70}, false, false},       {{9.99, 30}, false, false},
    };
    for (const PointCase& c : cases) {
        EXPECT_EQ(contains(kOuter, c.point), c.inOuter) << c.point.x;
        EXPECT_EQ(contains(next, c.point), c.inNext) << c.point.x;
    }
    EXPECT_FALSE(intersects(kOuter, next)) << "a shared side is no shared area";
}

TEST(OrvGeometry, intersects) {
    struct RectCase {
        Rect other;
        Rect shared;
    };
    const RectCase cases[] = {
        {{0, 0, 20, 30}, {10, 20, 10, 10}},
        {{30, 30, 5, 5}, {30, 30, 5, 5}},
        {{0, 0, 500, 500}, kOuter},
        {{0, 0, 10, 500}, {}},
        {{60, 0, 500, 500}, {60, 20, 50, 50}},
        {{40, 40, 0, 0}, {}},
    };
    for (const RectCase& c : cases) {
        EXPECT_EQ(intersection(kOuter, c.other), c.shared);
        EXPECT_EQ(intersection(c.other, kOuter), c.shared);
        EXPECT_EQ(intersects(kOuter, c.other), c.shared != Rect{});
    }
}

TEST(OrvGeometry, insets) {
    struct InsetCase {
        OrvInsets insets;
        Rect rect;
    };
    const InsetCase cases[] = {
        {{}, kOuter},
        {{1, 2, 3, 4}, {12, 21, 94, 46}},
        {{-1, -2, -3, -4}, {8, 19, 106, 54}},
        {{25, 0, 25, 0}, {10, 45, 100, 0}},
        {{0, 60, 0, 60}, {60, 20, 0, 50}},   // overlapping insets meet in the middle
        {{0, 120, 0, 40}, {100, 20, 0, 50}}, // between the left one at 130 and the right one at 70
    };
    for (const InsetCase& c : cases) {
        EXPECT_EQ(inset(kOuter, c.insets), c.rect);
    }
    EXPECT_EQ(inset(kOuter, 5, 1), (Rect{15, 21, 90, 48}));
}

TEST(OrvGeometry, fitsAtItsOwnProportions) {
    struct FitCase {
        Size content;
        Rect fitted;
    };
    const FitCase cases[] = {
        {{320, 160}, kOuter},            // the same proportions
        {{50, 100}, {47.5, 20, 25, 50}}, // too tall
        {{4, 1}, {10, 32.5, 100, 25}},   // too wide, grown
        {{0, 10}, {60, 45, 0, 0}},
        {{-5, 10}, {60, 45, 0, 0}},
    };
    for (const FitCase& c : cases) {
        EXPECT_EQ(fittedIn(kOuter, c.content), c.fitted);
    }
    EXPECT_EQ(centredIn(kOuter, {20, 10}), (Rect{50, 40, 20, 10}));
}

TEST(OrvGeometry, keepsWithinBounds) {
    struct KeepCase {
        Rect rect;
        Rect kept;
    };
    const KeepCase cases[] = {
        {{20, 30, 5, 5}, {20, 30, 5, 5}},
        {{0, 0, 5, 5}, {10, 20, 5, 5}},
        {{200, 200, 5, 5}, {105, 65, 5, 5}},
        {{50, 50, 200, 200}, {10, 20, 200, 200}}, // too large: the upper left stays in view
    };
    for (const KeepCase& c : cases) {
        EXPECT_EQ(keptWithin(kOuter, c.rect), c.kept);
    }
}

} // namespace
} // namespace velmora
