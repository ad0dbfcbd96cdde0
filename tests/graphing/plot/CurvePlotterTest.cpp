// Curves against a plain recursive model of the plotting rules, on functions that are hard to plot.

#include "graphing/plot/CurvePlotter.h"
#include "graphing/plot/ParameterCurves.h"
#include "tests/engine/TokenLine.h"
#include "tests/graphing/RecordingContext.h"

#include "platform/machine/Clock.h"

#include <gtest/gtest.h>

#include <functional>

namespace velmora {
namespace {

using Kind = RecordingContext::Kind;

/// What should be drawn, computed the way one would write the rules down.
class Model {
public:
    Model(std::function<ComplexValue(double)> f, const Viewport& v, bool almost) : f(std::move(f)), v(v) {
        const auto real = [&](ComplexValue z) { return almost ? std::abs(z.imag()) < 1e-11 : z.imag() == 0; };
        const double dx = (v.xMax - v.xMin) / v.width;
        double x = v.xMin;
        ComplexValue z = this->f(x);
        ++samples;
        float sy = height(z);
        bool wasReal = real(z);
        drawn.moveTo({0, sy});
        for (int i = 1; i <= v.width; ++i) {
            const double formerX = x;
            const float formerY = sy;
            x += dx;
            z = this->f(x);
            ++samples;
            sy = height(z);
            sometimesComplex = sometimesComplex || !real(z);
            if (!real(z) || !wasReal) {
                drawn.moveTo({double(i), sy});
            } else {
                graphed = true;
                if (std::abs(sy - formerY) < 30) {
                    drawn.lineTo({double(i), sy});
                } else {
                    investigate(formerX, formerY, float(i - 1), x, sy, float(i), 1);
                    if (std::isfinite(sy)) {
                        drawn.moveTo({double(i), sy});
                    }
                }
            }
            wasReal = real(z);
        }
        drawn.strokePath();
    }

    RecordingContext drawn;
    int samples = 0;
    bool graphed = false;
    bool sometimesComplex = false;

private:
    float height(ComplexValue z) const {
        return float(v.height - v.height * ((z.real() - v.yMin) / (v.yMax - v.yMin)));
    }
    void segment(float x1, double y1, float x2, double y2) {
        drawn.moveTo({x1, y1});
        drawn.lineTo({x2, y2});
        drawn.strokePath();
    }
    void investigate(double x1, double y1, float s1, double x2, double y2, float s2, int depth) {
        const auto side = [this](double y) { return std::isnan(y) ? 9 : y < 0 ? -1 : y > v.height ? 1 : 0; };
        const int a = side(y1);
        const int b = side(y2);
        if (a != 0 && b != 0 && (a == b || a == 9 || b == 9)) {
            return;
        }
        const double xm = (x1 + x2) * 0.5;
        ++samples;
        const float ym = height(f(xm));
        const float sm = (s1 + s2) * 0.5F;
        if (std::abs(ym - y1) < 30) {
            segment(s1, y1, sm, ym);
        } else if (depth < 50) {
            investigate(x1, y1, s1, xm, ym, sm, depth + 1);
        }
        if (std::abs(y2 - ym) < 30) {
            segment(sm, ym, s2, y2);
        } else if (depth < 50) {
            investigate(xm, ym, sm, x2, y2, s2, depth + 1);
        }
    }

    std::function<ComplexValue(double)> f;
    Viewport v;
};

/// Counts how often it is asked for a value.
class Counted final : public Expression {
public:
    explicit Counted(std::string line) : inner(parsed(line)) {}
    ComplexValue complexValue(ComplexEvaluation& evaluation) const override {
        ++count;
        return inner->isConstant() ? inner->constant() : inner->complexValue(evaluation);
    }
    void describe(DescriptionWriter&) const override {}
    std::unique_ptr<Expression> inner;
    mutable int count = 0;
};

RecordingContext drawn(const CurveDrawing& curve) {
    RecordingContext context;
    curve.draw(context);
    return context;
}

constexpr double kNoDeadline = 1e9;
constexpr Viewport kUsual{-10, 10.062695924764892, -10, 10, 320, 411};

TEST(CurvePlotter, drawsWhatTheRulesSay) {
    const Definitions definitions;
    const Viewport views[] = {kUsual,
                              {-1e-9, 1e-9, -1e-9, 1e-9, 1024, 700},
                              {1, 1 + 1e-9, -3, 3, 320, 411},
                              {-1e12, 1e12, -1e12, 1e12, 320, 411},
                              {3, 4, 200, 300, 321, 199},
                              {-0.01, 0.01, -1e300, 1e300, 320, 411}};
    for (const char* line : {"1 / x",
                             "tan( x )",
                             "1 / ( x - 1 ) ^ 2",
                             "sin( 1 / x )",
                             "x ^ x",
                             "( - 8 ) ^ x",
                             "sqrt( x )",
                             "ln( x )",
                             "roundDown( x )",
                             "e ^ ( 1 / x )",
                             "x ^ ( 1 / 3 )",
                             "100 * x",
                             "sin( 100 * x )",
                             "abs( x )",
                             "1E300 * x",
                             "sqrt( sin( 5 * x ) )",
                             "3",
                             "0 / 0",
                             "1000 * x",
                             "x ^ 21",
                             "x + i * 1E-12",
                             "x + i",
                             "1 / ( x - x )"}) {
        for (const Viewport& view : views) {
            for (const bool almost : {false, true}) {
                const auto counted = std::make_shared<Counted>(line);
                CurvePlotter plotter(counted, view, almost);
                plotter.refine(kNoDeadline);
                const Model model([&](double x) { return counted->inner->valueWithVariableValue(x); }, view,
                                  almost);
                ASSERT_EQ(drawn(plotter.curve()).commands, model.drawn.commands) << line << " " << view.xMin;
                EXPECT_EQ(counted->count, model.samples) << line;
                EXPECT_EQ(plotter.metaData().wasGraphed, model.graphed) << line;
                EXPECT_EQ(plotter.metaData().wasSometimesComplex, model.sometimesComplex) << line;
            }
        }
    }
}

TEST(CurvePlotter, leavesJumpsOpenAndClosesSteepCurves) {
    const Definitions definitions;
    struct Row {
        const char* line;
        int branches; ///< pieces that no line joins
    };
    for (const Row& row : {Row{"1 / x", 2}, Row{"5 * roundDown( x / 7 )", 4}, Row{"100 * x", 1},
                           Row{"1000 * x", 1}, Row{"x ^ 3", 1}, Row{"tan( x )", 7}}) {
        CurvePlotter plotter(std::shared_ptr<const Expression>(parsed(row.line)), kUsual, true);
        plotter.refine(kNoDeadline);
        // A piece ends where the next line begins elsewhere; only what is on screen counts.
        int pieces = 0;
        Point pen;
        Point end{-1, -1};
        for (const auto& command : drawn(plotter.curve()).commands) {
            if (command.kind == Kind::Line && command.b > -30 && command.b < 441) {
                pieces += pen == end ? 0 : 1;
                end = {command.a, command.b};
            }
            if (command.kind == Kind::Move || command.kind == Kind::Line) {
                pen = {command.a, command.b};
            }
        }
        EXPECT_EQ(pieces, row.branches) << row.line;
    }
}

/// A clock on which every look takes a quarter of a second.
class SlowClock final : public Clock {
public:
    double monotonicSeconds() const override { return 0.25 * ++looks; }
    CalendarTime now() const override { return {}; }
    mutable int looks = 0;
};

TEST(CurvePlotter, keepsToItsTime) {
    const Definitions definitions;
    SlowClock clock;
    const ClockScope scope(clock);
    const auto counted = std::make_shared<Counted>("tan( 1000 * x )");
    CurvePlotter plotter(counted, kUsual, true);
    EXPECT_EQ(counted->count, 321) << "all columns have their sample, however slow";
    EXPECT_TRUE(plotter.refine(0)) << "the deadline has passed: a few steps only";
    EXPECT_LT(counted->count, 321 + 257);
    int slices = 1;
    while (plotter.refine(kNoDeadline)) {
        ++slices;
        ASSERT_LT(slices, 10);
    }
    const int all = counted->count;
    EXPECT_LT(all, 321 + 5 * 257) << "a second in all, then the rest stays open";
    EXPECT_TRUE(plotter.isRefined());
    EXPECT_FALSE(plotter.refine(kNoDeadline));
    EXPECT_EQ(counted->count, all);
}

TEST(CurvePlotter, drawsNothingOfWhatIsNotGraphable) {
    const Definitions definitions;
    for (const char* line : {"", "x +", "sin( x"}) {
        const std::shared_ptr<const Expression> expression = parsed(line);
        const CurvePlotter plotter(expression, kUsual, true);
        EXPECT_EQ(drawn(plotter.curve()).commands.empty(), !expression->isGraphable()) << line;
    }
    EXPECT_TRUE(drawn(CurvePlotter(nullptr, kUsual, true).curve()).commands.empty());
}

TEST(ParameterCurves, goThroughTheirSteps) {
    const Definitions definitions;
    const Viewport view{-2, 2, -2, 2, 400, 400};
    const double pi = std::acos(-1.0);
    struct Row {
        double start;
        double end;
        bool degrees;
        double firstAngle; ///< radians, of the point where the pen is set down
    };
    for (const Row& row : {Row{0, 2 * pi, false, 0}, Row{90, 450, true, 90}}) {
        const ParameterPlotter plotter(polarCurve(parsed("1"), {row.start, row.end}, row.degrees, view),
                                       view);
        const auto commands = drawn(plotter.curve()).commands;
        ASSERT_EQ(commands.size(), 1002U);
        EXPECT_TRUE(plotter.metaData().wasGraphed);
        EXPECT_NEAR(commands[0].a, 200 + 100 * std::cos(row.firstAngle), 1e-4);
        EXPECT_NEAR(commands[0].b, 200 - 100 * std::sin(row.firstAngle), 1e-4);
        const double unit = row.degrees ? pi / 180 : 1;
        for (const int i : {0, 1, 500, 999}) {
            const double angle = (row.start + i * (row.end - row.start) / 1000) * unit;
            EXPECT_EQ(commands[std::size_t(i) + 1].kind, Kind::Line);
            EXPECT_NEAR(commands[std::size_t(i) + 1].a, 200 + 100 * std::cos(angle), 1e-4) << i;
            EXPECT_NEAR(commands[std::size_t(i) + 1].b, 200 - 100 * std::sin(angle), 1e-4) << i;
        }
    }
    const ParameterPlotter plotter(parametricCurve(parsed("t + i"), parsed("t ^ 2"), {-1, 1}, view), view);
    const auto pair = drawn(plotter.curve()).commands;
    ASSERT_EQ(pair.size(), 1002U);
    EXPECT_EQ(pair[0], (RecordingContext::Command{Kind::Move, 100, 100}));
    EXPECT_NEAR(pair[1000].a, 200 + 100 * 0.998, 1e-4);
    EXPECT_FALSE(plotter.metaData().wasSometimesComplex);
    const ParameterPlotter none(parametricCurve(parsed("t"), parsed(""), {0, 1}, view), view);
    EXPECT_TRUE(drawn(none.curve()).commands.empty());
    EXPECT_FALSE(none.metaData().wasGraphed);
}

} // namespace
} // namespace velmora
