#pragma once

#include "platform/ViewController.h"

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
    void willAnimateRotation(Orientation) override { record("willRotate"); }
    void didRotate(Orientation) override { record("didRotate"); }
    bool shouldAutorotate(Orientation orientation) const override {
        return !allowed || orientation == *allowed;
    }

    /// Runs after each hook was written down.
    std::function<void(const std::string&)> onEvent;
    /// The only orientation allowed, if any is set.
    std::optional<Orientation> allowed;

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

} // namespace velmora
