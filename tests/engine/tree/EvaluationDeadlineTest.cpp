#include "engine/tree/EvaluationDeadline.h"

#include "engine/tree/EvaluationBudget.h"
#include "platform/machine/Clock.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

/// A clock that goes on by a millisecond whenever somebody looks at it.
class LookedAtClock final : public Clock {
public:
    double monotonicSeconds() const override { return 0.001 * static_cast<double>(++looks); }
    CalendarTime now() const override { return {}; }

    mutable int looks = 0;
};

/// y1 is slow in itself, and every further equation calls the one before it `calls` times.
struct SlowEquations {
    explicit SlowEquations(const std::string& slow, int calls) {
        user.load(user.equations, 0, slow);
        for (int i = 1; i < 4; ++i) {
            const std::string call = "y" + std::to_string(i) + "( x )";
            std::string line = call;
            for (int n = 1; n < calls; ++n) {
                line += " + " + call;
            }
            user.load(user.equations, i, line);
        }
    }
    Definitions user;
};

TEST(EvaluationBudget, countsWhatAnEvaluationCosts) {
    struct Row {
        const char* slow;
        int calls;
        const char* line;
        bool suffices;
    };
    const Row rows[] = {
        {"x", 60, "y3( 1 )", true},  // 3,600 calls
        {"x", 60, "y4( 1 )", false}, // 216,000
        {"comb( 1 0 2 0 , 4 0 8 x )", 60, "y2( 1 )", true},
        {"comb( 1 0 2 0 , 4 0 8 x )", 60, "y3( 1 )", false}, // nine million products
        {"perm( 1 7 0 , 1 6 0 x ) E - 3 0 0", 60, "y3( 1 )", true},
        {"mod( 1 E 3 0 0 , x + 2 )", 60, "y2( 1 )", true},
        {"mod( 1 E 3 0 0 , x + 2 )", 60, "y4( 1 )", false},
        {"comb( 1 0 2 0 , 4 0 8 x )", 60, "conditional( 2 , 1 , y3( 1 ) )", true}, // not taken
        // nothing of what was given up shows, whatever is made of it
        {"comb( 1 0 2 0 , 4 0 8 x )", 60, "min( 1 , y3( 1 ) )", false},
    };
    for (const Row& row : rows) {
        const SlowEquations equations(row.slow, row.calls);
        EXPECT_NE(isNaN(valueAt(row.line, 1.0)), row.suffices) << row.slow << ": " << row.line;
    }
}

TEST(EvaluationDeadline, endsWhatIsTooSlowForItButNeverTheFirst) {
    const SlowEquations equations("sin( x )", 30);
    const auto slow = parsed("y3( x )"); // 900 sines, and as many calls
    LookedAtClock clock;
    const ClockScope scope(clock);
    const ComplexValue whole = slow->valueWithVariableValue(0.5);
    EXPECT_EQ(clock.looks, 0);

    EvaluationDeadline deadline(0.0015);
    EXPECT_EQ(slow->valueWithVariableValue(0.5), whole); // over the deadline, but the first
    EXPECT_FALSE(deadline.hasCutShort());
    EXPECT_GT(deadline.cost(), 900 * 20);
    EXPECT_FALSE(deadline.hasPassed());
    EXPECT_TRUE(isNaN(slow->valueWithVariableValue(0.5)));
    EXPECT_TRUE(deadline.hasCutShort());
    EXPECT_TRUE(deadline.hasPassed());
    EXPECT_EQ(parsed("x + 1")->valueWithVariableValue(0.5), 1.5); // what is quick needs no clock
}

TEST(EvaluationDeadline, looksAtTheClockAsOftenAsTheWorkIsWorthIt) {
    const auto quick = parsed("x + 1");
    LookedAtClock clock;
    const ClockScope scope(clock);
    EvaluationDeadline deadline(0.0105);
    int values = 0;
    while (!deadline.hasPassed()) {
        EXPECT_EQ(quick->valueWithVariableValue(2.0), 3.0);
        ++values;
    }
    EXPECT_EQ(clock.looks, 11);
    EXPECT_GT(values, 11 * 50);
    EXPECT_LT(values, 11 * 500);
    EXPECT_FALSE(deadline.hasCutShort());
}

} // namespace
} // namespace velmora
