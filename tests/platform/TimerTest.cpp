#include "platform/Timer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Timers : public testing::Test {
protected:
    std::function<void()> record(const std::string& name) {
        return [this, name] { fired.push_back(name); };
    }
    std::vector<std::string> advance(double seconds) {
        fired.clear();
        service.advance(seconds);
        return fired;
    }

    ManualTimerService service;
    TimerServiceScope scope{service};
    std::vector<std::string> fired;
};

TEST_F(Timers, fireWhenDueInOrder) {
    const Subscription late = startTimer(2, TimerKind::OneShot, record("late"));
    const Subscription early = startTimer(1, TimerKind::OneShot, record("early"));
    const Subscription repeating = startTimer(0.75, TimerKind::Repeating, record("tick"));
    const Subscription alsoEarly = startTimer(1, TimerKind::OneShot, record("also early"));
    EXPECT_THAT(fired, IsEmpty());
    EXPECT_THAT(advance(0.5), IsEmpty());
    EXPECT_THAT(advance(0.5), ElementsAre("tick", "early", "also early"));
    EXPECT_THAT(advance(2), ElementsAre("tick", "late", "tick", "tick"));
    EXPECT_EQ(service.pendingCount(), 1U);
}

TEST_F(Timers, stopWithTheirSubscription) {
    { const Subscription brief = startTimer(1, TimerKind::OneShot, record("brief")); }
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
    const Subscription negative = startTimer(-1, TimerKind::OneShot, record("negative"));
    const Subscription undefined = startTimer(notANumber, TimerKind::OneShot, record("undefined"));
    EXPECT_THAT(advance(0), ElementsAre("negative", "undefined"));
    const Subscription frantic = startTimer(0, TimerKind::Repeating, record("frantic"));
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
