#include "ui/machine/QtAlertPresenter.h"

#include "platform/events/ActionScope.h"

#include <utility>

namespace velmora {

void QtAlertPresenter::present(Alert alert) {
    if (alert.buttons.empty()) {
        alert.buttons = Alert{}.buttons; // an alert without a button could never be left
    }
    m_alerts.push_back(std::move(alert));
    Q_EMIT changed();
}

QString QtAlertPresenter::title() const {
    return isShown() ? QString::fromStdString(m_alerts.front().title) : QString();
}

QString QtAlertPresenter::message() const {
    return isShown() ? QString::fromStdString(m_alerts.front().message) : QString();
}

QStringList QtAlertPresenter::buttons() const {
    QStringList texts;
    if (isShown()) {
        for (const std::string& button : m_alerts.front().buttons) {
            texts.append(QString::fromStdString(button));
        }
    }
    return texts;
}

void QtAlertPresenter::cancel() {
    const QStringList choices = buttons();
    choose(choices.size() == 1 ? 0 : int(choices.indexOf(QStringLiteral("Cancel"))));
}

void QtAlertPresenter::choose(int button) {
    if (!isShown() || button < 0 || button >= static_cast<int>(m_alerts.front().buttons.size())) {
        return;
    }
    const ActionScope action;
    const Alert answered = std::move(m_alerts.front());
    m_alerts.pop_front();
    Q_EMIT changed();
    if (answered.onChosen) {
        answered.onChosen(button);
    }
}

} // namespace velmora
