// The numbers of the axes as they are written.

#include "graphing/axes/NumberPlacement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace velmora {
namespace {

HashMarks along(bool vertical, const Viewport& view) {
    const auto spacing = vertical ? HashMarkSpacing::chosenFor(view.yMin, view.yMax, false)
                                  : HashMarkSpacing::chosenFor(view.xMin, view.xMax, false);
    return HashMarks::along(vertical, view, spacing, false, {});
}

std::string texts(const std::vector<LabelRecord>& labels) {
    std::string all;
    for (const LabelRecord& label : labels) {
        all += label.text + " ";
    }
    return all;
}

TEST(AxisNumbers, haveTheDigitsThatTellThemApart) {
    struct Row {
        double low;
        double high;
        const char* numbers;
    };
    for (const Row& row :
         {Row{20, 20.00001, "20 20.000002 20.000004 20.000006 20.000008 20.00001 "},
          Row{1e9, 1e9 + 5, "1000000000 1000000001 1000000002 1000000003 1000000004 1000000005 "},
          Row{-5, 5, "-4 -2 2 4 "}}) {
        const HashMarks marks = along(false, {row.low, row.high, -1, 1, 320, 400});
        std::string rounded = texts(marks.labels);
        EXPECT_EQ(rounded, row.numbers);
    }
}

TEST(AxisNumbers, standClearOfTicksEachOtherAndWhatIsTaken) {
    for (const Viewport& view :
         {Viewport{5, 25, 99990, 100010, 320, 400}, Viewport{-25, -5, -5e11, 5e11, 320, 400},
          Viewport{0.0000001, 0.00013, -1, 1, 320, 400}, Viewport{-10, 10, -10, 10, 320, 400},
          Viewport{-1e-5, 1e-4, 123456, 123457, 320, 400}}) {
        const HashMarks vertical = along(true, view);
        const HashMarks horizontal = along(false, view);
        const Rect corner{285, 365, 30, 30};
        const Rect title{20, 0, 150, 17};
        const auto placed = placedNumbers(vertical, horizontal, {320, 400}, {corner, title});
        ASSERT_GE(placed.size(), 4U);
        for (std::size_t i = 0; i < placed.size(); ++i) {
            const Rect text = textRect(placed[i]);
            EXPECT_GE(text.x, 0) << placed[i].text;
            EXPECT_LE(text.x + text.width, 320) << placed[i].text;
            const auto isApart = [&](const Rect& other) {
                return text.x + text.width < other.x || other.x + other.width < text.x ||
                       text.y + text.height <= other.y || other.y + other.height <= text.y;
            };
            EXPECT_TRUE(isApart(corner)) << placed[i].text;
            EXPECT_TRUE(isApart(title)) << placed[i].text;
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_TRUE(isApart(textRect(placed[j]))) << placed[i].text << " " << placed[j].text;
            }
        }
        for (const LabelRecord& label : placed) {
            const bool isVertical = std::ranges::any_of(
                vertical.labels, [&](const LabelRecord& mark) { return mark.text == label.text; });
            if (isVertical && texts(horizontal.labels).find(label.text) == std::string::npos) {
                const Rect text = textRect(label);
                EXPECT_TRUE(text.x > vertical.axisPosition + 10 ||
                            text.x + text.width < vertical.axisPosition - 10)
                    << label.text << " beside its tick";
            }
        }
    }
}

} // namespace
} // namespace velmora
