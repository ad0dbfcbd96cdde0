// One frame: the order of its commands, axes, hash marks and labels.

#include "tests/graphing/GraphFixture.h"

#include "calculator/model/SlotColors.h"
#include "platform/machine/Clock.h"
#include "platform/machine/Device.h"

#include <algorithm>
#include <limits>

namespace velmora {
namespace {

using Kind = RecordingContext::Kind;
using GraphViewTest = GraphFixture;

TEST(HashMarkSpacing, isRoundAndFitsTheRange) {
    struct Row {
        double low;
        double high;
        double spacing;
        int lines;
    };
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Row& row : {Row{-10, 10, 5, 5}, Row{-1, 1, 0.5, 5}, Row{0, 5, 1, 5}, Row{0, 10, 2, 4},
                           Row{0, 7.49, 1, 5}, Row{0, 7.5, 2, 4}, Row{0, 14.99, 2, 4}, Row{0, 15, 5, 5},
                           Row{0, 38, 5, 5}, Row{0, 38.1, 10, 5}, Row{0, 3.81, 1, 5}, Row{0, 3.79, 5e-1, 5},
                           Row{-1e12, 1e12, 5e11, 5}, Row{0, 1e-9, 2e-10, 4}, Row{1e6, 1e6 + 1e-3, 2e-4, 4},
                           Row{0, 0, 0, 0}, Row{1, 0, 0, 0}, Row{0, infinity, 0, 0}, Row{0, 1e300, 0, 0}}) {
        const auto spacing = HashMarkSpacing::chosenFor(row.low, row.high, false);
        EXPECT_NEAR(spacing.hashmarkSpacing, row.spacing, row.spacing * 1e-12) << row.low << " " << row.high;
        EXPECT_EQ(spacing.linesPerHashmark, row.lines) << row.low << " " << row.high;
    }
    EXPECT_EQ(HashMarkSpacing::chosenFor(-10, 10, true).linesPerHashmark, 1);
}

TEST(HashMarks, areNumberedBesideTheAxis) {
    struct Row {
        bool vertical;
        Viewport viewport;
        const char* numbers; ///< of the labels, in their order
        Rect firstFrame;
    };
    const auto at = [](double x0, double x1, double y0, double y1, int w = 320) {
        return Viewport{x0, x1, y0, y1, w, 400};
    };
    for (const Row& row :
         {// below the horizontal axis in the middle; the outermost numbers are pushed in
          Row{false, at(-10, 10, -10, 10), "-10 -5 5 10 ", {-15, 210, 50, 20}},
          // the axis below the screen: along the lower edge, the numbers above it
          Row{false, at(-1, 1, 3, 4), "-1 -0.5 0.5 1 ", {-15, 370, 50, 20}},
          // above the screen: along the upper edge
          Row{false, at(-1, 1, -4, -3), "-1 -0.5 0.5 1 ", {-15, 10, 50, 20}},
          // marks closer together have narrower numbers
          Row{false, at(0, 7, -1, 1), "1 2 3 4 5 6 7 ", {26.7142868, 210, 39, 20}},
          Row{true, at(-10, 10, -10, 10), "-10 -5 5 10 ", {110, 380, 50, 20}},
          Row{true, at(1, 2, -10, 10), "-10 -5 5 10 ", {0, 380, 50, 20}},
          Row{true, at(-2, -1, 240000, 260000), "240000 245000 250000 255000 260000 ", {270, 380, 50, 20}},
          Row{true,
              at(-10, 10, 99990, 100010, 768),
              "99990 99995 100000 100005 100010 ",
              {324, 380, 50, 20}}}) {
        const auto spacing = row.vertical
                                 ? HashMarkSpacing::chosenFor(row.viewport.yMin, row.viewport.yMax, false)
                                 : HashMarkSpacing::chosenFor(row.viewport.xMin, row.viewport.xMax, false);
        const HashMarks marks =
            HashMarks::along(row.vertical, row.viewport, spacing, row.viewport.width > 500, {});
        std::string numbers;
        for (const LabelRecord& label : marks.labels) {
            numbers += label.text + " ";
        }
        EXPECT_EQ(numbers, row.numbers);
        ASSERT_FALSE(marks.labels.empty());
        const Rect frame = marks.labels.front().frame;
        EXPECT_NEAR(frame.x, row.firstFrame.x, 1e-4) << row.numbers;
        EXPECT_NEAR(frame.y, row.firstFrame.y, 1e-4) << row.numbers;
        EXPECT_EQ(frame.width, row.firstFrame.width) << row.numbers;
        EXPECT_EQ(marks.labels.front().fontSize, row.viewport.width > 500 ? 18 : 12);
    }
    // Far out, where adding the spacing no longer changes a value, the marks end.
    EXPECT_LT(HashMarks::along(false, at(1e17, 1e17 + 64, 0, 1), {1, 5}, false, {}).gridLines.size(), 10U);
}

TEST_F(GraphViewTest, drawsAxesThenGridThenCurves) {
    setBounds(-10, 10, -10, 10);
    setEquation(0, "x");
    setEquation(3, "3");
    Model::m().setGraphGridLineType(1);
    const auto commands = frame().commands;
    const auto at = [&](std::size_t i) { return commands.at(i); };
    EXPECT_EQ(at(0), (RecordingContext::Command{Kind::StrokeColor, 0, 1}));
    EXPECT_EQ(at(1), (RecordingContext::Command{Kind::Width, 1}));
    // the vertical axis, then the horizontal one
    EXPECT_EQ(at(2), (RecordingContext::Command{Kind::Move, 160, 0}));
    EXPECT_EQ(at(3), (RecordingContext::Command{Kind::Line, 160, 400}));
    EXPECT_EQ(at(5), (RecordingContext::Command{Kind::Move, 0, 200}));
    // grid lines in their colour, from below, then the ticks
    EXPECT_EQ(at(8), (RecordingContext::Command{Kind::StrokeColor, 0, 0.2}));
    EXPECT_EQ(at(10), (RecordingContext::Command{Kind::Move, 0, 400}));
    EXPECT_EQ(at(11), (RecordingContext::Command{Kind::Line, 320, 400}));
    EXPECT_EQ(at(25), (RecordingContext::Command{Kind::StrokeColor, 0, 1}));
    EXPECT_EQ(at(27), (RecordingContext::Command{Kind::Move, 150, 400}));
    EXPECT_EQ(at(28), (RecordingContext::Command{Kind::Line, 170, 400}));
    // 2 axes; 5 grid lines and 5 ticks along each; a path of each curve
    EXPECT_EQ(std::ranges::count(commands, RecordingContext::Command{Kind::Stroke}), 24);
    // the curves in their colours, slot 3 on top
    const auto first = std::ranges::find(commands, RecordingContext::Command{Kind::StrokeColor, 1.0, 1});
    ASSERT_NE(first, commands.end());
    EXPECT_EQ(*(first - 1), (RecordingContext::Command{Kind::Width, 1}));
    EXPECT_EQ(*(first + 1), (RecordingContext::Command{Kind::FillColor, 1.0, 1}));
    const auto last = std::ranges::find(commands, RecordingContext::Command{Kind::StrokeColor, 0.615, 1});
    EXPECT_EQ(commands.end() - last, 2 + 321 + 1);
}

TEST_F(GraphViewTest, keepsScalesEqualWhereAskedTo) {
    Model::m().setSameScaleXAndY(true);
    for (const double width : {20.0, 2e-6, 1e30, 1e200}) {
        setBounds(-width / 2, width / 2, -width, 5);
        frame();
        const Viewport shown = view().viewport();
        EXPECT_NEAR((shown.yMax - shown.yMin) / width, 1.25, 1e-6) << width;
        EXPECT_EQ(Model::m().yMaxForGraph(), shown.yMax);
        EXPECT_EQ(shown.yMin, -width);
    }
    setBounds(-10, 10, -10, 10);
    frame();
    const auto& labels = view().hashMarkLabelArray();
    ASSERT_EQ(labels.back().text, "10") << "both axes have the vertical one's spacing of 5";
    EXPECT_EQ(labels[labels.size() - 2].text, "5");
}

TEST_F(GraphViewTest, namesCurvesInTheirColours) {
    setEquation(0, "sqrt( x )");
    setEquation(2, "i");
    setEquation(3, "x");
    frame();
    ASSERT_EQ(view().graphLabelArray().size(), 8U);
    EXPECT_EQ(label(0), "y1(x)=sqrt(x) (complex values not shown)");
    EXPECT_EQ(label(1), "y4(x)=x");
    EXPECT_EQ(view().graphLabelArray()[1].textColor, slotColor(3));
    EXPECT_EQ(label(2), "");
    const Rect frameOfSecond = view().graphLabelArray()[1].frame;
    EXPECT_EQ(frameOfSecond, (Rect{20, 17, 320.9 - 40, 17}))
        << "lines of a font of 14 are 16.8 apart, whole and one more";
    {
        PlainDevice tablet(DeviceClass::Tablet);
        const DeviceScope scope(tablet);
        frame();
        EXPECT_EQ(view().graphLabelArray()[0].fontSize, 29);
    }
    Model::m().setPutLabelsOnGraph(false);
    frame();
    EXPECT_EQ(label(0), "");

    Model::m().setPutLabelsOnGraph(true);
    Model::m().setGraphType(2);
    for (int slot = 0; slot < 4; ++slot) {
        store(Model::m().parametricX(), slot, "t");
        store(Model::m().parametricY(), slot, "t * i");
    }
    frame();
    EXPECT_EQ(label(0), "x1(t)=t");
    EXPECT_EQ(label(1), "y1(t)=t*i") << "complex values of a curve go without a word";
    EXPECT_EQ(label(7), "y4(t)=t*i");
}

TEST_F(GraphViewTest, saysWhenThereIsNothingToDraw) {
    frame();
    EXPECT_FALSE(view().noGraphLabel().hidden);
    EXPECT_EQ(
        view().noGraphLabel().text,
        "There are no graphable equations.  To enter an equation, go to the Equations tab, choose one of the "
        "equations there, enter it, and press save.");
    setEquation(1, "1");
    frame();
    EXPECT_TRUE(view().noGraphLabel().hidden);
    view().setSize({0, 400});
    EXPECT_TRUE(redrawn().commands.empty());
}

TEST_F(GraphViewTest, followsTheGround) {
    Model::m().setGraphBackgroundIsBlack(true);
    EXPECT_EQ(view().backgroundColor(), Color::white(0));
    EXPECT_EQ(view().axisColor(), Color::white(1));
    EXPECT_EQ(view().gridlineColor(), Color::white(1, 0.3));
    frame();
    EXPECT_EQ(view().hashMarkLabelArray().front().textColor, Color::white(1));
    EXPECT_EQ(view().axisWidth(), 1);
    view().setSize({501, 400});
    EXPECT_EQ(view().axisWidth(), 2);
}

/// A clock on which a look takes a millisecond.
class BusyClock final : public Clock {
public:
    double monotonicSeconds() const override { return 0.001 * ++looks; }
    CalendarTime now() const override { return {}; }
    mutable int looks = 0;
};

TEST_F(GraphViewTest, refinesFurtherAtRestOnly) {
    BusyClock clock;
    const ClockScope scope(clock);
    setEquation(0, "tan( 1000 * x )");
    const std::size_t lines = frame().commands.size();
    ASSERT_FALSE(view().isRefined());
    int redraws = 0;
    const Subscription subscription = view().needsDisplay().subscribe([&] { ++redraws; });
    timers.advance(0.19);
    EXPECT_EQ(redraws, 0);
    timers.advance(0.012);
    EXPECT_GE(redraws, 1) << "a slice has been worked off";
    const int before = redraws;
    const std::size_t more = redrawn().commands.size();
    EXPECT_GT(more, lines);
    begin({{1, {10, 10}}});
    timers.advance(5);
    EXPECT_EQ(redraws, before) << "a finger is on the view";
    end({{1, {10, 10}}});
    timers.advance(5);
    EXPECT_TRUE(view().isRefined());
    EXPECT_EQ(timers.pendingCount(), 0U);
    EXPECT_GT(redrawn().commands.size(), more);
}

} // namespace
} // namespace velmora
