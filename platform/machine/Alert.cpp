#include "platform/machine/Alert.h"

#include "platform/events/ActionScope.h"
#include "platform/text/Log.h"

#include <utility>

namespace velmora {

namespace {

class LoggingAlertPresenter final : public AlertPresenter {
public:
    void present(Alert alert) override { log("alert: " + alert.title + ": " + alert.message); }
};

} // namespace

void presentAlert(Alert alert) {
    static LoggingAlertPresenter logging;
    AlertPresenterScope::installedOr(logging).present(std::move(alert));
}

bool RecordingAlertPresenter::choose(int button) {
    if (m_alerts.empty() || !std::in_range<std::size_t>(button) ||
        static_cast<std::size_t>(button) >= m_alerts.front().buttons.size()) {
        return false;
    }
    const ActionScope action;
    const Alert answered = std::move(m_alerts.front());
    m_alerts.erase(m_alerts.begin());
    if (answered.onChosen) {
        answered.onChosen(button);
    }
    return true;
}

} // namespace velmora
