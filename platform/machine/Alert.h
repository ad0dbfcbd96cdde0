#pragma once

#include "platform/machine/InstallScope.h"

#include <functional>
#include <string>
#include <vector>

namespace velmora {

/// A message to the user with one or more buttons.
struct Alert {
    // Each member has a value of its own, so that an alert can be made by naming only some of them.
    std::string title{};
    std::string message{};
    std::vector<std::string> buttons{"OK"};
    /// Called with the index of the chosen button; may be empty.
    std::function<void(int)> onChosen{};
};

/// Shows alerts, one at a time in the order presented.
class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;

    /// Takes the alert and returns at once, before the user has chosen.
    virtual void present(Alert alert) = 0;
};

/// Hands the alert to the presenter in force; while none is installed it is logged and unanswered.
void presentAlert(Alert alert);

/// Keeps alerts until they are answered by a call.
class RecordingAlertPresenter final : public AlertPresenter {
public:
    void present(Alert alert) override { m_alerts.push_back(std::move(alert)); }

    /// The alerts not yet answered, the one on screen first.
    const std::vector<Alert>& alerts() const { return m_alerts; }

    /// Answers the alert on screen, which goes away before its callback runs.
    /// False, with nothing changed, when there is no alert or no such button.
    bool choose(int button);

    /// Drops every alert unanswered.
    void clear() { m_alerts.clear(); }

private:
    std::vector<Alert> m_alerts;
};

using AlertPresenterScope = InstallScope<AlertPresenter>;

} // namespace velmora
