#include "app/AutoSaver.h"

#include "platform/machine/Timer.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

class AutoSaverTest : public testing::Test {
protected:
    /// How often it was saved while so many seconds pass.
    int savesIn(double seconds) {
        const int before = saves;
        timers.advance(seconds);
        return saves - before;
    }

    int saves = 0;
    ManualTimerService timers;
    TimerServiceScope scope{timers};
    AutoSaver saver{[this] { ++saves; }};
};

TEST_F(AutoSaverTest, savesASecondAfterAStoredLineHoweverManyFollow) {
    EXPECT_EQ(savesIn(100), 0);
    saver.note(ModelChange::Committed);
    EXPECT_EQ(savesIn(0.9), 0);
    saver.note(ModelChange::Committed);
    EXPECT_EQ(savesIn(0.2), 1) << "the first one counts";
    saver.note(ModelChange::Committed);
    EXPECT_EQ(savesIn(1.8), 0) << "at most once in two seconds";
    EXPECT_EQ(savesIn(0.2), 1);
    EXPECT_EQ(savesIn(100), 0) << "nothing more to save";
    for (int tenth = 0; tenth < 100; ++tenth) {
        saver.note(ModelChange::Committed);
        timers.advance(0.1);
    }
    EXPECT_GE(saves, 6) << "changes without a pause are saved as well";
    EXPECT_LE(saves, 8);
}

TEST_F(AutoSaverTest, waitsUntilARangeRestsAndALineIsLeft) {
    for (const auto& [change, rest] : {std::pair{ModelChange::Moved, 1.0}, {ModelChange::Typed, 5.0}}) {
        for (int step = 0; step < 10; ++step) {
            saver.note(change);
            EXPECT_EQ(savesIn(rest * 0.9), 0);
        }
        EXPECT_EQ(savesIn(rest * 0.2), 1);
        EXPECT_EQ(savesIn(100), 0);
    }
    saver.note(ModelChange::Committed);
    for (int step = 0; step < 10; ++step) {
        saver.note(ModelChange::Moved);
        timers.advance(0.2);
    }
    EXPECT_EQ(saves, 3) << "what moves does not put off a stored line";
}

} // namespace
} // namespace velmora
