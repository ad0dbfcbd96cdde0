// Frames on a screen's pixels: what is shown at once, and what comes in at rest.

#include "platform/machine/Clock.h"
#include "tests/graphing/GraphFixture.h"
#include "tests/graphing/PixelContext.h"

namespace velmora {
namespace {

/// Later by a step at each look.
class TickingClock final : public Clock {
public:
    explicit TickingClock(double step) : m_step(step) {}
    double monotonicSeconds() const override { return m_seconds += m_step; }
    CalendarTime now() const override { return {}; }

private:
    double m_step;
    mutable double m_seconds = 0;
};

class GraphOnPixels : public GraphFixture {
protected:
    PixelContext shown() {
        PixelContext context(2);
        view().drawRect(context);
        return context;
    }
    PixelContext shownAnew() {
        view().readBoundsFromModel();
        view().setNeedsDisplay();
        return shown();
    }
    /// Lets the view rest until it is complete; how often it asked for a redraw.
    int rest() {
        int redraws = 0;
        const Subscription subscription = view().needsDisplay().subscribe([&] {
            ++redraws;
            shown();
        });
        for (int i = 0; i < 100000 && !view().isRefined(); ++i) {
            timers.advance(0.25);
        }
        EXPECT_TRUE(view().isRefined());
        return redraws;
    }
};

TEST_F(GraphOnPixels, samplesOfASlowEquationStopAtTheDeadlineAndGoOnAtRest) {
    setEquation(0, "x ^ 2 / 5 - 5");
    const PixelContext complete = shownAnew();
    ASSERT_TRUE(view().isRefined());

    TickingClock clock(0.002);
    const ClockScope scope(clock);
    const PixelContext first = shownAnew();
    EXPECT_FALSE(view().isRefined());
    EXPECT_NE(first.alpha, complete.alpha);
    rest();
    EXPECT_EQ(shown().alpha, complete.alpha);
    EXPECT_EQ(label(0), "y1(x)=x^2/5-5");
}

TEST_F(GraphOnPixels, noCurveWaitsForOneThatNeverEnds) {
    setEquation(0, "tan( 10000 * x )");
    setEquation(2, "10 * sin( 50 * x )");
    TickingClock clock(0.00001);
    const ClockScope scope(clock);
    const PixelContext first = shownAnew();
    ASSERT_FALSE(view().isRefined());
    ASSERT_EQ(first.inkOfCurves.size(), 2U);
    EXPECT_GT(first.inkOfCurves[0], 0);
    EXPECT_GT(first.inkOfCurves[1], 0);
    rest();
    const PixelContext complete = shown();
    EXPECT_GT(complete.inkOfCurves[0], first.inkOfCurves[0]);
}

TEST_F(GraphOnPixels, isPaintedSomeTenTimesASecondAtRest) {
    setEquation(0, "10 * sin( 1E6 * x )");
    TickingClock clock(0.0005);
    const ClockScope scope(clock);
    shownAnew();
    const double start = monotonicSeconds();
    const int redraws = rest();
    const double seconds = monotonicSeconds() - start;
    EXPECT_GE(redraws, 1);
    EXPECT_LE(redraws, 10 * seconds + 2);
}

TEST_F(GraphOnPixels, aContextWithoutPixelsStillGetsEveryLine) {
    setEquation(0, "10 * sin( 50 * x )");
    ManualClock clock; // stands still, so there is time for all
    const ClockScope scope(clock);
    const auto lines = frame().commands;
    shown();
    EXPECT_EQ(redrawn().commands, lines);
    EXPECT_GT(lines.size(), 5000U);
}

} // namespace
} // namespace velmora
