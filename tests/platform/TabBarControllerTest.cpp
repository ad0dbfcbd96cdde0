#include "platform/TabBarController.h"

#include "platform/NavigationController.h"
#include "tests/platform/LogRecorder.h"
#include "tests/platform/RecordingScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TabBarController::Tabs screens(std::size_t count, Events& events) {
    TabBarController::Tabs tabs;
    for (std::size_t index = 0; index < count; ++index) {
        tabs.push_back(std::make_shared<RecordingScreen>(std::to_string(index), events));
    }
    return tabs;
}

TEST(TabBarCapacity, gathersUnderMoreWhatDoesNotFit) {
    struct BarCase {
        DeviceClass deviceClass;
        std::size_t tabs;
        std::size_t visible;
        bool more;
    };
    const BarCase cases[] = {
        {DeviceClass::Phone, 0, 0, false},  {DeviceClass::Phone, 5, 5, false},
        {DeviceClass::Phone, 6, 4, true},   {DeviceClass::Phone, 10, 4, true},
        {DeviceClass::Tablet, 8, 8, false}, {DeviceClass::Tablet, 9, 7, true},
        {DeviceClass::Tablet, 10, 7, true},
    };
    for (const BarCase& c : cases) {
        PlainDevice device(c.deviceClass);
        const DeviceScope scope(device);
        Events events;
        TabBarController bar;
        bar.setViewControllers(screens(c.tabs, events));
        EXPECT_EQ(bar.visibleTabCount(), c.visible) << c.tabs;
        EXPECT_EQ(bar.hasMore(), c.more) << c.tabs;
        EXPECT_EQ(bar.showMoreList(), c.more) << c.tabs;
        bar.setFirstTabBehindMore(3); // though the bar has room
        EXPECT_EQ(bar.visibleTabCount(), std::min<std::size_t>(c.tabs, 3)) << c.tabs;
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
    struct Step {
        const char* what;
        std::function<void()> run;
        Events events;
    };
    const Step steps[] = {
        {"select",
         [&] { bar.setSelectedIndex(1); },
         {"root willDisappear", "1 load", "1 willAppear", "root didDisappear", "1 didAppear"}},
        {"select the same", [&] { bar.setSelectedIndex(1); }, {}},
        {"select none", [&] { bar.setSelectedIndex(6); }, {}},
        {"push on a stack not shown",
         [&] { stack->push(std::make_shared<RecordingScreen>("top", events)); },
         {}},
        {"show More", [&] { bar.showMoreList(); }, {"1 willDisappear", "1 didDisappear"}},
        {"choose from More", [&] { bar.tapTab(5); }, {"5 load", "5 willAppear", "5 didAppear"}},
        {"select by a screen in a stack",
         [&] { bar.selectViewController(*root); },
         {"5 willDisappear", "top load", "top willAppear", "5 didDisappear", "top didAppear"}},
        {"tap the selected stack",
         [&] { bar.tapTab(0); },
         {"top willDisappear", "root willAppear", "top didDisappear", "root didAppear"}},
        {"go off display", [&] { bar.disappear(); }, {"root willDisappear", "root didDisappear"}},
        {"select while off display", [&] { bar.setSelectedIndex(2); }, {}},
        {"come on display", [&] { bar.appear(); }, {"2 load", "2 willAppear", "2 didAppear"}},
    };
    for (const Step& step : steps) {
        events.clear();
        step.run();
        EXPECT_EQ(events, step.events) << step.what;
    }
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
    EXPECT_FALSE(bar.tapTab(3));
    EXPECT_FALSE(bar.tapTab(99));
    EXPECT_TRUE(bar.setSelectedIndex(1)) << "only taps are asked about";
    EXPECT_EQ(bar.selectedIndex(), 1U);
    EXPECT_THAT(calls, ElementsAre("should", "did 2", "should"));
}

TEST_F(TabBar, tellsOfEachChangeOnce) {
    int changes = 0;
    const Subscription subscription = bar.selectionChanged().subscribe([&] { ++changes; });
    bar.setSelectedIndex(1);
    bar.setSelectedIndex(1);
    bar.showMoreList();
    bar.showMoreList();
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(bar.showsMoreList());
    EXPECT_EQ(bar.selectedIndex(), 1U);
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
    EXPECT_THAT(events,
                ElementsAre("1 willDisappear", "2 load", "2 willAppear", "1 didDisappear", "2 didAppear"));
    EXPECT_EQ(log.lines().size(), 1U);
    bar.setViewControllers({});
    EXPECT_EQ(bar.selectedViewController(), nullptr);
    EXPECT_FALSE(bar.setSelectedIndex(0));
    EXPECT_FALSE(bar.selectViewController(*root));
}

} // namespace
} // namespace velmora
