#pragma once

#include "platform/screens/ViewController.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

using Events = std::vector<std::string>;

/// A screen that writes down its hooks as "name hook".
class RecordingScreen final : public ViewController {
public:
    RecordingScreen(std::string name, Events& events) : m_name(std::move(name)), m_events(events) {}

    std::string className() const override { return "RecordingScreen"; }
    void viewDidLoad() override { record("load"); }
    void viewWillAppear(bool) override { record("willAppear"); }
    void viewDidAppear(bool) override { record("didAppear"); }
    void viewWillDisappear(bool) override { record("willDisappear"); }
    void viewDidDisappear(bool) override { record("didDisappear"); }

    bool shouldAutorotate(Orientation orientation) const override {
        return orientation == allowed.value_or(orientation);
    }

    /// The one orientation it allows; nothing for any.
    std::optional<Orientation> allowed;
    /// Runs after each hook was written down.
    std::function<void(const std::string&)> onEvent;

private:
    void record(const std::string& hook) {
        const std::string event = m_name + " " + hook;
        m_events.push_back(event);
        if (const auto action = onEvent) {
            action(event);
        }
    }

    std::string m_name;
    Events& m_events;
};

/// The hooks of an exchange of the screen on display. An empty name: there is none on that side. A new screen
/// is loaded first.
enum class Arriving { Known, New };
inline Events exchange(const std::string& leaving, const std::string& arriving,
                       Arriving kind = Arriving::Known) {
    Events events{leaving + " willDisappear", arriving + " load", arriving + " willAppear",
                  leaving + " didDisappear", arriving + " didAppear"};
    std::erase_if(events, [kind](const std::string& event) {
        return event.starts_with(' ') || (kind == Arriving::Known && event.ends_with("load"));
    });
    return events;
}

/// One thing done, and the hooks that it must run.
struct Step {
    const char* what;
    std::function<void()> run;
    Events expected;
};

template <std::size_t count> void expectHooks(Events& events, const Step (&steps)[count]) {
    for (const Step& step : steps) {
        events.clear();
        step.run();
        EXPECT_EQ(events, step.expected) << step.what;
    }
}

} // namespace velmora
