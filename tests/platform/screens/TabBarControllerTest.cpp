#include "platform/screens/TabBarController.h"

#include "platform/screens/NavigationController.h"
#include "tests/platform/screens/RecordingScreen.h"
#include "tests/platform/text/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using testing::ElementsAre;

TabBarController::Tabs screens(std::size_t count, Events& events) {
    TabBarController::Tabs tabs;
    for (std::size_t index = 0; index < count; ++index) {
        tabs.push_back(std::make_shared<RecordingScreen>(std::to_string(index), events));
    }
    return tabs;
}

TEST(TabBarCapacity, gathersUnderMoreWhatDoesNotFit) {
    using enum DeviceClass;
    struct Row {
        DeviceClass deviceClass;
        std::size_t tabs;
        std::size_t visible;
        bool more;
    };
    for (const Row& row : {Row{Phone, 0, 0, false}, Row{Phone, 5, 5, false}, Row{Phone, 6, 4, true},
                           Row{Phone, 10, 4, true}, Row{Tablet, 8, 8, false}, Row{Tablet, 9, 7, true}}) {
        PlainDevice device(row.deviceClass);
        const DeviceScope scope(device);
        Events events;
        TabBarController bar;
        bar.setViewControllers(screens(row.tabs, events));
        EXPECT_EQ(bar.visibleTabCount(), row.visible) << row.tabs;
        EXPECT_TRUE(bar.hasMore() == row.more && bar.showMoreList() == row.more) << row.tabs;
        bar.setFirstTabBehindMore(3); // though the bar has room
        EXPECT_EQ(bar.visibleTabCount(), std::min<std::size_t>(row.tabs, 3)) << row.tabs;
    }
}

/// A bar of six tabs on a phone, on display, whose hooks so far are forgotten. The first is a stack.
class TabBar : public testing::Test {
protected:
    TabBar() {
        tabs[0] = stack;
        bar.setViewControllers(tabs);
        bar.appear();
        events.clear();
    }

    Events events;
    TabBarController::Tabs tabs = screens(6, events);
    std::shared_ptr<ViewController> root = std::make_shared<RecordingScreen>("root", events);
    std::shared_ptr<NavigationController> stack = std::make_shared<NavigationController>(root);
    TabBarController bar;
};

TEST_F(TabBar, runsTheHooksOfWhatItShows) {
    int changes = 0;
    const Subscription subscription = bar.selectionChanged().subscribe([&] { ++changes; });
    const auto top = std::make_shared<RecordingScreen>("top", events);
    const Step steps[] = {
        {"select", [&] { bar.setSelectedIndex(1); }, exchange("root", "1", Arriving::New)},
        {"select the same", [&] { bar.setSelectedIndex(1); }, {}},
        {"select none", [&] { bar.setSelectedIndex(6); }, {}},
        {"push on a stack not shown", [&] { stack->push(top); }, {}},
        {"show More", [&] { bar.showMoreList(); }, exchange("1", "")},
        {"show More again", [&] { bar.showMoreList(); }, {}},
        {"choose from More", [&] { bar.tapTab(5); }, exchange("", "5", Arriving::New)},
        {"select by a screen in a stack", [&] { bar.selectViewController(*root); },
         exchange("5", "top", Arriving::New)},
        {"tap the selected stack", [&] { bar.tapTab(0); }, exchange("top", "root")},
        {"go off display", [&] { bar.disappear(); }, exchange("root", "")},
        {"select while off display", [&] { bar.setSelectedIndex(2); }, {}},
        {"come on display", [&] { bar.appear(); }, exchange("", "2", Arriving::New)},
    };
    expectHooks(events, steps);
    EXPECT_EQ(changes, 5) << "each change is told once";
}

TEST_F(TabBar, asksBeforeATapAndTellsAfterIt) {
    Events calls;
    bar.setShouldSelect([&](ViewController& tab) {
        calls.push_back("should");
        return &tab != tabs[3].get();
    });
    bar.setDidSelect(
        [&](ViewController& tab) { calls.push_back(&tab == tabs[2].get() ? "did 2" : "did other"); });
    EXPECT_TRUE(bar.tapTab(2));
    EXPECT_FALSE(bar.tapTab(3) || bar.tapTab(99));
    EXPECT_TRUE(bar.setSelectedIndex(1)) << "only taps are asked about";
    bar.showMoreList();
    EXPECT_EQ(bar.selectedIndex(), 1U);
    EXPECT_THAT(calls, ElementsAre("should", "did 2", "should"));
}

TEST_F(TabBar, turnsOnlyWhereEveryScreenOfTheSelectedTabAllows) {
    using enum Orientation;
    const auto top = std::make_shared<RecordingScreen>("top", events);
    stack->push(top);
    struct TurnCase {
        std::optional<Orientation> root, top;
        bool more, upright, onItsSide;
    };
    const TurnCase cases[] = {{{}, {}, false, true, true},
                              {Portrait, {}, false, true, false},
                              {{}, LandscapeLeft, false, false, true},
                              {Portrait, LandscapeLeft, false, false, false},
                              {Portrait, {}, true, true, false}}; // the list stands in for the tab
    for (const TurnCase& c : cases) {
        dynamic_cast<RecordingScreen&>(*root).allowed = c.root;
        top->allowed = c.top;
        EXPECT_EQ(c.more && bar.showMoreList(), c.more);
        EXPECT_EQ(bar.shouldAutorotate(Portrait), c.upright);
        EXPECT_EQ(bar.shouldAutorotate(LandscapeLeft), c.onItsSide);
    }
}

TEST_F(TabBar, takesOtherTabs) {
    const LogRecorder log;
    bar.setSelectedIndex(1);
    events.clear();
    bar.setViewControllers({nullptr, tabs[2], nullptr});
    EXPECT_EQ(events, exchange("1", "2", Arriving::New));
    EXPECT_EQ(log.lines().size(), 1U);
    bar.setViewControllers({});
    EXPECT_EQ(bar.selectedViewController(), nullptr);
    EXPECT_FALSE(bar.setSelectedIndex(0) || bar.selectViewController(*root));
}

} // namespace
} // namespace velmora
