// What lines cover of the pixels, and what the plotter leaves out because it would show nothing.

#include "graphing/plot/CurvePlotter.h"
#include "graphing/plot/ParameterCurves.h"
#include "platform/machine/Clock.h"
#include "tests/engine/TokenLine.h"
#include "tests/graphing/PixelContext.h"
#include "tests/graphing/RecordingContext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velmora {
namespace {

PixelContext covered(const CurveCoverage& coverage) {
    PixelContext context;
    context.fillCoverage(coverage.pixels());
    return context;
}

TEST(CurveCoverage, isThatOfAPen) {
    CurveCoverage coverage({20, 10}, {.perPoint = 1, .lineWidth = 2});
    EXPECT_EQ(coverage.addLine({5, -100}, {5, 100}), 20) << "two columns of ten pixels";
    EXPECT_EQ(coverage.addLine({5, 2}, {5, 7}), 0) << "nothing new";
    EXPECT_GT(coverage.addLine({10, 5}, {18, 5}), 0);
    const PixelContext drawn = covered(coverage);
    EXPECT_TRUE(drawn.isWithinExtents);
    for (int row = 0; row < 10; ++row) {
        EXPECT_EQ(drawn.at(4, row), 255);
        EXPECT_EQ(drawn.at(5, row), 255);
        EXPECT_EQ(drawn.at(3, row), 0);
        EXPECT_EQ(drawn.at(7, row), 0);
    }
    EXPECT_EQ(drawn.at(14, 4), 255);
    EXPECT_EQ(drawn.at(14, 5), 255);
    EXPECT_EQ(drawn.at(14, 6), 0);
    EXPECT_TRUE(coverage.isFull(4, 6));
    EXPECT_FALSE(coverage.isFull(4, 6.5));
}

TEST(CurveCoverage, leavesOutWhatIsNoLineOrNowhereInSight) {
    CurveCoverage coverage({10, 10}, {.perPoint = 2, .lineWidth = 1});
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Point& end : {Point{NAN, 5}, Point{5, infinity}, Point{-infinity, NAN}}) {
        EXPECT_EQ(coverage.addLine({5, 5}, end), 0);
        EXPECT_EQ(coverage.addLine(end, {5, 5}), 0);
    }
    EXPECT_EQ(coverage.addLine({-50, 3}, {-40, 8}), 0);
    EXPECT_EQ(coverage.addLine({5, 1e30}, {6, 2e30}), 0);
    EXPECT_EQ(covered(coverage).alpha, std::vector<std::uint8_t>(400, 0));
    EXPECT_GT(coverage.addLine({-1e30, 5}, {1e30, 5}), 0) << "crosses the whole width";
    EXPECT_TRUE(covered(coverage).isWithinExtents);
    EXPECT_EQ(covered(coverage).coveredIn(0), covered(coverage).coveredIn(19));
}

TEST(CurveCoverage, hasNoBeadsWhereLinesMeet) {
    CurveCoverage whole({40, 400}, {.perPoint = 1, .lineWidth = 1});
    CurveCoverage pieces({40, 400}, {.perPoint = 1, .lineWidth = 1});
    whole.addLine({10, 20}, {30, 380});
    for (int piece = 0; piece < 20; ++piece) {
        pieces.addLine({10.0 + piece, 20.0 + 18 * piece}, {11.0 + piece, 38.0 + 18 * piece});
    }
    const PixelContext one = covered(whole);
    const PixelContext many = covered(pieces);
    for (std::size_t i = 0; i < one.alpha.size(); ++i) {
        ASSERT_NEAR(one.alpha[i], many.alpha[i], 1) << i;
    }
}

/// Counts how often it is asked for a value.
class Counted final : public Expression {
public:
    explicit Counted(const std::string& line) : inner(parsed(line)) {}
    ComplexValue complexValue(ComplexEvaluation& evaluation) const override {
        ++count;
        return inner->complexValue(evaluation);
    }
    void describe(DescriptionWriter&) const override {}
    std::unique_ptr<Expression> inner;
    mutable int count = 0;
};

constexpr Viewport kView{-10, 10, -10, 10, 320, 400};
constexpr double kNoDeadline = HUGE_VAL;

PixelContext plotted(const std::shared_ptr<const Expression>& expression, const DevicePixels& pixels) {
    CurvePlotter plotter(expression, kView, true, pixels);
    while (plotter.refine(kNoDeadline)) {
    }
    PixelContext context(pixels.perPoint);
    plotter.curve().draw(context);
    return context;
}

TEST(CurvePlotterOnPixels, coversWhatTheStatedLinesCover) {
    const DevicePixels pixels{.perPoint = 2, .lineWidth = 1};
    for (const char* line : {"sin( x ) / x", "x ^ 3 / 20 - x", "tan( x )", "1 / x", "sqrt( x )", "1000 * x",
                             "10 * sin( 20 * x )", "roundDown( x )", "ln( x )"}) {
        const std::shared_ptr<const Expression> expression = parsed(line);
        CurvePlotter stated(expression, kView, true);
        stated.refine(kNoDeadline);
        RecordingContext lines;
        stated.curve().draw(lines);
        CurveCoverage all({320, 400}, pixels);
        Point pen;
        for (const auto& command : lines.commands) {
            const Point point{command.a, command.b};
            if (command.kind == RecordingContext::Kind::Line) {
                all.addLine(pen, point);
            }
            pen = point;
        }
        PixelContext expected(2);
        expected.fillCoverage(all.pixels());
        const PixelContext drawn = plotted(expression, pixels);
        int differing = 0;
        int inked = 0;
        for (std::size_t i = 0; i < drawn.alpha.size(); ++i) {
            differing += std::abs(int(drawn.alpha[i]) - int(expected.alpha[i])) > 64 ? 1 : 0;
            inked += expected.alpha[i] > 0 ? 1 : 0;
        }
        EXPECT_GT(inked, 100) << line;
        EXPECT_LE(differing, inked / 200) << line;
    }
}

TEST(CurvePlotterOnPixels, endsSoonHoweverDenseTheCurve) {
    ManualClock clock; // stands still, so that no curve ends for want of time
    const ClockScope scope(clock);
    struct Row {
        const char* line;
        int covered; ///< pixels of each column, of 400
    };
    for (const Row& row : {Row{"10 * sin( 1E6 * x )", 396}, Row{"5 * sin( 1E6 * x )", 196},
                           Row{"tan( 1E5 * x )", 396}, Row{"10 * sin( 1E5 * x ^ 2 )", 380}}) {
        const auto counted = std::make_shared<Counted>(row.line);
        const PixelContext drawn = plotted(counted, {.perPoint = 1, .lineWidth = 1});
        // Two samples that happen to lie close are joined, whatever is between them.
        int dense = 0;
        for (int column = 2; column < 318; ++column) {
            dense += drawn.coveredIn(column) >= row.covered ? 1 : 0;
            ASSERT_LE(drawn.coveredIn(column), row.covered + 20) << row.line << " " << column;
        }
        EXPECT_GT(dense, 240) << row.line;
        EXPECT_LT(counted->count, 4'000'000) << row.line; // its lines are millions
    }
}

TEST(CurvePlotterOnPixels, showsTheWholeCourseBeforeAllSamplesAreThere) {
    const auto counted = std::make_shared<Counted>("x + sin( x )");
    CurvePlotter plotter(counted, kView, true, {.perPoint = 1, .lineWidth = 1});
    EXPECT_EQ(counted->count, 0);
    while (counted->count < 11) { // a value each 32 columns
        ASSERT_TRUE(plotter.refine(0));
    }
    EXPECT_LT(counted->count, 321);
    PixelContext sketched;
    plotter.curve().draw(sketched);
    int columns = 0;
    for (int column = 0; column < 320; ++column) {
        columns += sketched.coveredIn(column) > 0 ? 1 : 0;
    }
    EXPECT_GT(columns, 310);
    EXPECT_TRUE(plotter.metaData().wasGraphed);
    while (plotter.refine(0)) {
    }
    EXPECT_EQ(counted->count, 321);
    EXPECT_TRUE(plotter.isRefined());
}

TEST(ParameterPlotterOnPixels, goesOnWhereItStopped) {
    const Viewport square{-2, 2, -2, 2, 200, 200};
    ParameterPlotter plotter(polarCurve(parsed("1"), {0, 6.3}, false, square), square,
                             {.perPoint = 1, .lineWidth = 1});
    int slices = 0;
    while (plotter.refine(0)) {
        ++slices;
    }
    EXPECT_GT(slices, 1);
    PixelContext circle;
    plotter.curve().draw(circle);
    EXPECT_GE(circle.at(150, 100) + circle.at(149, 100), 250);
    EXPECT_GE(circle.at(50, 100) + circle.at(49, 100), 250);
    EXPECT_EQ(circle.at(100, 100), 0);
}

} // namespace
} // namespace velmora
