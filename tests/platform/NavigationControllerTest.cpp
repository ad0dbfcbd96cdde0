#include "platform/NavigationController.h"

#include "platform/ActionScope.h"
#include "tests/platform/LogRecorder.h"
#include "tests/platform/RecordingScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    struct Step {
        const char* what;
        std::function<void()> run;
        Events events;
    };
    const Step steps[] = {
        {"push",
         [&] { stack.push(b); },
         {"a willDisappear", "b load", "b willAppear", "a didDisappear", "b didAppear"}},
        {"push again",
         [&] { stack.push(c); },
         {"b willDisappear", "c load", "c willAppear", "b didDisappear", "c didAppear"}},
        {"replace a hidden root", [&] { stack.replaceRoot(d); }, {}},
        {"pop to what is on top already", [&] { stack.popTo(*c); }, {}},
        {"pop to the root",
         [&] { stack.popToRoot(); },
         {"c willDisappear", "d load", "d willAppear", "c didDisappear", "d didAppear"}},
        {"pop the root", [&] { stack.pop(); }, {}},
        {"push a former screen",
         [&] { stack.push(b); },
         {"d willDisappear", "b willAppear", "d didDisappear", "b didAppear"}},
        {"pop", [&] { stack.pop(); }, {"b willDisappear", "d willAppear", "b didDisappear", "d didAppear"}},
        {"replace the root on display",
         [&] { stack.replaceRoot(e); },
         {"d willDisappear", "e load", "e willAppear", "d didDisappear", "e didAppear"}},
        {"go off display", [&] { stack.disappear(); }, {"e willDisappear", "e didDisappear"}},
        {"push while off display", [&] { stack.push(b); }, {}},
        {"come on display", [&] { stack.appear(); }, {"b willAppear", "b didAppear"}},
        {"come on display again", [&] { stack.appear(); }, {}},
    };
    for (const Step& step : steps) {
        events.clear();
        step.run();
        EXPECT_EQ(events, step.events) << step.what;
    }
}

TEST_F(Navigation, refusesWhatCannotBeStacked) {
    const LogRecorder log;
    const auto b = screen("b");
    stack.push(b);
    NavigationController other;
    stack.push(b);
    other.push(b);
    other.replaceRoot(a);
    stack.push(nullptr);
    EXPECT_THAT(stack.viewControllers(), ElementsAre(a, b));
    EXPECT_THAT(other.viewControllers(), IsEmpty());
    EXPECT_EQ(log.lines().size(), 4U);
    EXPECT_EQ(b->navigationController(), &stack);
    EXPECT_FALSE(stack.popTo(*screen("elsewhere")));
    EXPECT_EQ(other.topViewController(), nullptr);
    EXPECT_EQ(other.pop(), nullptr);
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

TEST_F(Navigation, clearsTheBackReferenceOfWhatLeaves) {
    const auto b = screen("b");
    stack.push(b);
    EXPECT_EQ(stack.pop(), b);
    EXPECT_EQ(b->navigationController(), nullptr);
    {
        NavigationController other(b);
        EXPECT_EQ(b->navigationController(), &other);
    }
    EXPECT_EQ(b->navigationController(), nullptr);
}

TEST_F(Navigation, letsAScreenCloseItself) {
    stack.push(screen("b"));
    std::weak_ptr<ViewController> weak = stack.topViewController();
    ViewController* plain = stack.topViewController().get();
    plain->setRightBarButtons({{"Done", [this, plain] {
                                    stack.pop();
                                    stack.push(screen("c"));
                                    plain->setTitle("still here"); // must not be gone yet
                                }}});
    EXPECT_TRUE(plain->pressRightBarButton(0));
    EXPECT_TRUE(weak.expired()) << "it goes when the button's action is over";
}

TEST_F(Navigation, keepsScreensUntilTheOutermostEventEnds) {
    stack.push(screen("b"));
    const std::weak_ptr<ViewController> weak = stack.topViewController();
    {
        const ActionScope outer;
        {
            const ActionScope inner;
            stack.pop();
        }
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

    events.clear();
    const auto c = screen("c");
    const auto d = screen("d");
    c->onEvent = [&](const std::string& event) {
        if (event == "c didAppear") {
            c->onEvent = nullptr;
            stack.push(d);
        }
    };
    stack.push(c);
    EXPECT_THAT(stack.viewControllers(), ElementsAre(a, c, d));
    EXPECT_TRUE(d->isVisible());
    EXPECT_FALSE(c->isVisible());
}

} // namespace
} // namespace velmora
