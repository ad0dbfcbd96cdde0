#include "platform/Timer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Timers : public testing::Test {
protected:
    Subscription start(double seconds, TimerKind kind, const std::string& name) {
        return startTimer(seconds, kind, [this, name] { fired.push_back(name); });
    }
    std::vector<std::string> advance(double seconds) {
        service.advance(seconds);
        return std::exchange(fired, {});
    }

    ManualTimerService service;
    TimerServiceScope scope{service};
    std::vector<std::string> fired;
};

TEST_F(Timers, fireWhenDueInOrder) {
    const Subscription late = start(2, TimerKind::OneShot, "late");
    const Subscription early = start(1, TimerKind::OneShot, "early");
    const Subscription repeating = start(0.75, TimerKind::Repeating, "tick");
    const Subscription alsoEarly = start(1, TimerKind::OneShot, "also early");
    { const Subscription stopped = start(0.5, TimerKind::OneShot, "stopped"); }
    EXPECT_THAT(advance(0.5), IsEmpty());
    EXPECT_THAT(advance(0.5), ElementsAre("tick", "early", "also early"));
    EXPECT_THAT(advance(2), ElementsAre("tick", "late", "tick", "tick"));
    EXPECT_EQ(service.pendingCount(), 1U);
}

TEST_F(Timers, mayStopThemselves) {
    Subscription ticking;
    ticking = startTimer(1, TimerKind::Repeating, [&] {
        fired.emplace_back("tick");
        if (fired.size() == 2) {
            ticking.cancel(); // frees the callback that is running
        }
    });
    EXPECT_THAT(advance(10), ElementsAre("tick", "tick"));
    EXPECT_EQ(service.pendingCount(), 0U);
}

TEST_F(Timers, bearUselessDelays) {
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const Subscription negative = start(-1, TimerKind::OneShot, "negative");
    const Subscription undefined = start(notANumber, TimerKind::OneShot, "undefined");
    EXPECT_THAT(advance(0), ElementsAre("negative", "undefined"));
    const Subscription frantic = start(0, TimerKind::Repeating, "frantic");
    EXPECT_EQ(advance(0.0105).size(), 10U);
    EXPECT_THAT(advance(notANumber), IsEmpty());
}

TEST(ManualTimerService, mayBeDestroyedByACallback) {
    auto service = std::make_unique<ManualTimerService>();
    int calls = 0;
    const Subscription subscription = service->start(1, TimerKind::OneShot, [&] {
        ++calls;
        service.reset();
    });
    service->advance(1);
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace velmora
