#pragma once

#include "platform/machine/Alert.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <deque>

namespace velmora {

/// Shows alerts in the scene, one after the other.
class QtAlertPresenter : public QObject, public AlertPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool shown READ isShown NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QStringList buttons READ buttons NOTIFY changed)

public:
    void present(Alert alert) override;

    bool isShown() const { return !m_alerts.empty(); }
    QString title() const;
    QString message() const;
    QStringList buttons() const;
    /// Answers the alert on screen; an index without a button is ignored.
    Q_INVOKABLE void choose(int button);
    /// Answers it by its "Cancel", or by its only button; without either it stays.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void changed();

private:
    std::deque<Alert> m_alerts;
};

} // namespace velmora
