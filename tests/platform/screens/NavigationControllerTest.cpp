#include "platform/screens/NavigationController.h"

#include "platform/events/ActionScope.h"
#include "tests/platform/screens/RecordingScreen.h"
#include "tests/platform/text/LogRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ViewController, pressesBarButtonsAsAUserCan) {
    Events events;
    RecordingScreen screen("a", events);
    int presses = 0;
    const auto swap = [&] {
        screen.setRightBarButtons({}); // frees the action that is running
        ++presses;
    };
    screen.setRightBarButtons(
        {{"Swap", swap}, {"Disabled", [&] { presses += 100; }, false}, {"Nothing", {}}});
    EXPECT_FALSE(screen.pressRightBarButton(1) || screen.pressRightBarButton(3) ||
                 screen.pressLeftBarButton(0));
    EXPECT_TRUE(screen.pressRightBarButton(2) && screen.pressRightBarButton(0));
    EXPECT_EQ(presses, 1);
}

/// A stack on display with one screen "a", whose hooks so far are forgotten.
class Navigation : public testing::Test {
protected:
    Navigation() {
        stack.appear();
        events.clear();
    }
    std::shared_ptr<RecordingScreen> screen(const std::string& name) {
        return std::make_shared<RecordingScreen>(name, events);
    }

    Events events;
    std::shared_ptr<RecordingScreen> a = screen("a");
    NavigationController stack{a};
};

TEST_F(Navigation, runsTheHooksInOrder) {
    const auto b = screen("b");
    const auto c = screen("c");
    const auto d = screen("d");
    const auto e = screen("e");
    const Step steps[] = {
        {"push", [&] { stack.push(b); }, exchange("a", "b", Arriving::New)},
        {"push again", [&] { stack.push(c); }, exchange("b", "c", Arriving::New)},
        {"replace a hidden root", [&] { stack.replaceRoot(d); }, {}},
        {"pop to what is on top already", [&] { stack.popTo(*c); }, {}},
        {"pop to the root", [&] { stack.popToRoot(); }, exchange("c", "d", Arriving::New)},
        {"pop the root", [&] { stack.pop(); }, {}},
        {"push a former screen", [&] { stack.push(b); }, exchange("d", "b")},
        {"pop", [&] { stack.pop(); }, exchange("b", "d")},
        {"replace the root on display", [&] { stack.replaceRoot(e); }, exchange("d", "e", Arriving::New)},
        {"go off display", [&] { stack.disappear(); }, exchange("e", "")},
        {"push while off display", [&] { stack.push(b); }, {}},
        {"come on display", [&] { stack.appear(); }, exchange("", "b")},
        {"come on display again", [&] { stack.appear(); }, {}},
    };
    expectHooks(events, steps);
}

TEST_F(Navigation, refusesWhatCannotBeStacked) {
    const LogRecorder log;
    const auto b = screen("b");
    NavigationController other;
    stack.push(b);
    stack.push(b);
    other.push(b);
    other.replaceRoot(a);
    stack.push(nullptr);
    EXPECT_THAT(stack.viewControllers(), ElementsAre(a, b));
    EXPECT_THAT(other.viewControllers(), IsEmpty());
    EXPECT_EQ(log.lines().size(), 4U);
    EXPECT_FALSE(stack.popTo(*screen("elsewhere")) || other.topViewController() || other.pop());
    EXPECT_EQ(b->navigationController(), &stack);
    EXPECT_EQ(stack.pop(), b);
    EXPECT_EQ(b->navigationController(), nullptr) << "it has left";
    {
        NavigationController holder(b);
        EXPECT_EQ(b->navigationController(), &holder);
    }
    EXPECT_EQ(b->navigationController(), nullptr);
}

TEST_F(Navigation, keepsTheNameOfTheWayBackWhenTheRootIsReplaced) {
    a->setBackButtonTitle("Cancel");
    stack.push(screen("editor"));
    stack.replaceRoot(screen("b"));
    EXPECT_EQ(stack.rootViewController()->backButtonTitle(), "Cancel");
    stack.popToRoot();
    stack.replaceRoot(screen("c")); // from which nothing leads back
    EXPECT_EQ(stack.rootViewController()->backButtonTitle(), "");
}

TEST_F(Navigation, keepsAScreenThatClosesItselfUntilTheOutermostEventEnds) {
    stack.push(screen("b"));
    const std::weak_ptr<ViewController> weak = stack.topViewController();
    ViewController* plain = stack.topViewController().get();
    plain->setRightBarButtons({{"Done", [this, plain] {
                                    stack.pop();
                                    stack.push(screen("c"));
                                    plain->setTitle("still here"); // must not be gone yet
                                }}});
    {
        const ActionScope outer;
        EXPECT_TRUE(plain->pressRightBarButton(0));
        EXPECT_FALSE(weak.expired());
    }
    EXPECT_TRUE(weak.expired());
}

TEST_F(Navigation, survivesHooksThatChangeTheStack) {
    const auto b = screen("b");
    b->onEvent = [&](const std::string& event) {
        if (event == "b willAppear") {
            stack.pop();
        }
    };
    stack.push(b);
    EXPECT_THAT(stack.viewControllers(), ElementsAre(a));
    EXPECT_THAT(events, ElementsAre("a willDisappear", "b load", "b willAppear", "b willDisappear",
                                    "a willAppear", "b didDisappear", "a didAppear"));
    const auto c = screen("c");
    const auto d = screen("d");
    c->onEvent = [&](const std::string& event) {
        if (event == "c didAppear") {
            stack.push(d);
        }
    };
    stack.push(c);
    EXPECT_THAT(stack.viewControllers(), ElementsAre(a, c, d));
    EXPECT_TRUE(d->isVisible() && !c->isVisible());
}

} // namespace
} // namespace velmora
