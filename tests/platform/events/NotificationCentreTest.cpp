#include "platform/events/NotificationCentre.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;

class Notifications : public testing::Test {
protected:
    NotificationCentre::Handler recorder(const std::string& name) {
        return [this, name](const Notification&) { heard.push_back(name); };
    }

    NotificationCentre centre;
    std::vector<std::string> heard;
};

TEST_F(Notifications, reachThoseWhoAskedForNameAndObject) {
    const int row = 0;
    const int otherRow = 0;
    const Subscription all = centre.addObserver("pressed", recorder("all"));
    const Subscription one = centre.addObserver("pressed", recorder("one"), &row);
    const Subscription other = centre.addObserver("saved", recorder("saved"));
    centre.post("pressed", &row);
    centre.post("pressed", &otherRow);
    centre.post("pressed");
    centre.post("unknown", &row);
    EXPECT_THAT(heard, ElementsAre("all", "one", "all", "all"));
}

TEST_F(Notifications, allowObserversToComeAndGoDuringADelivery) {
    Subscription added;
    Subscription last;
    Subscription first;
    first = centre.addObserver("n", [&](const Notification&) {
        heard.emplace_back("first");
        added = centre.addObserver("n", recorder("added"));
        last.cancel();
        first.cancel();
    });
    const Subscription middle = centre.addObserver("n", recorder("middle"));
    last = centre.addObserver("n", recorder("last"));
    centre.post("n");
    EXPECT_THAT(heard, ElementsAre("first", "middle"));
    centre.post("n");
    EXPECT_THAT(heard, ElementsAre("first", "middle", "middle", "added"));
}

TEST_F(Notifications, endWithTheSubscriptionOrTheReset) {
    {
        const Subscription brief = centre.addObserver("n", recorder("brief"));
        Subscription moved = centre.addObserver("n", recorder("replaced"));
        moved = centre.addObserver("n", recorder("moved"));
        centre.post("n");
    }
    centre.post("n");
    Subscription afterReset = centre.addObserver("n", recorder("gone"));
    centre.reset();
    centre.post("n");
    afterReset.cancel();
    EXPECT_THAT(heard, ElementsAre("brief", "moved"));
}

TEST(Signal, mayBeDestroyedByAListener) {
    auto signal = std::make_unique<Signal<>>();
    int calls = 0;
    const Subscription first = signal->subscribe([&] {
        ++calls;
        signal.reset();
    });
    const Subscription second = signal->subscribe([&] { ++calls; });
    signal->emit();
    EXPECT_EQ(calls, 2) << "the delivery that has begun is finished";
}

} // namespace
} // namespace velmora
