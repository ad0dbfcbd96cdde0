#include "tools/units/UnitConvertLayout.h"

#include "tools/units/UnitConvertKeypad.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

std::vector<Rect> everything(const UnitConvertLayout& layout) {
    std::vector<Rect> frames{layout.leftSideLabel, layout.rightSideLabel, layout.faultLabel,
                             layout.swapButton};
    frames.insert(frames.end(), layout.wheels.begin(), layout.wheels.end());
    frames.insert(frames.end(), layout.keys.begin(), layout.keys.end());
    return frames;
}

bool overlap(const Rect& a, const Rect& b) {
    constexpr double kRounding = 1e-9; // neighbours touch to within the rounding of the scale
    return a.x + kRounding < b.x + b.width && b.x + kRounding < a.x + a.width &&
           a.y + kRounding < b.y + b.height && b.y + kRounding < a.y + a.height;
}

TEST(UnitConvertLayout, fillsEveryScreenWithoutOverlap) {
    // The lowest phone, a common one, the highest, and tablets both ways.
    for (const Size view : {Size{320, 387}, Size{320, 599}, Size{320, 900}, Size{768, 931}, Size{1024, 675},
                            Size{600, 787}, Size{1366, 931}, Size{2000, 507}}) {
        SCOPED_TRACE(std::to_string(view.width) + " by " + std::to_string(view.height));
        const UnitConvertLayout layout = unitConvertLayout(view);
        const auto frames = everything(layout);
        EXPECT_EQ(layout.keys.size(), unitConvertKeys().size());
        for (std::size_t i = 0; i < frames.size(); ++i) {
            const Rect& frame = frames[i];
            EXPECT_TRUE(frame.x >= 0 && frame.y >= 0 && frame.x + frame.width <= view.width + 0.01 &&
                        frame.y + frame.height <= view.height + 0.01)
                << "frame " << i;
            for (std::size_t j = i + 1; j < frames.size(); ++j) {
                EXPECT_FALSE(overlap(frame, frames[j])) << "frames " << i << " and " << j;
            }
        }
        const double scale = layout.scale;
        EXPECT_DOUBLE_EQ(layout.wheels[0].width, 60 * scale);
        EXPECT_DOUBLE_EQ(layout.wheels[1].width, 110 * scale);
        EXPECT_DOUBLE_EQ(layout.wheels[2].width, 110 * scale);
        EXPECT_DOUBLE_EQ(layout.wheelRowHeight, 40 * scale);
        const double rows = layout.wheels[0].height / layout.wheelRowHeight;
        EXPECT_TRUE(rows == 3 || rows == 5 || rows == 7 || rows == 9) << rows;
        EXPECT_GE(layout.keys.front().height, 38) << "room for a finger";
    }
}

} // namespace
} // namespace velmora
