#pragma once

#include "platform/events/Subscription.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class ConstantEditViewController;
class SceneAdapter;

/// One of the user's constants as QML edits it.
class ConstantEditAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString plainName READ plainName CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY refreshed)
    Q_PROPERTY(QString value READ value NOTIFY refreshed)
    Q_PROPERTY(bool defined READ isDefined NOTIFY refreshed)

public:
    ConstantEditAdapter(std::shared_ptr<ConstantEditViewController> controller, const SceneAdapter& scene);
    ~ConstantEditAdapter() override;

    QString plainName() const;
    QString name() const;
    QString value() const;
    bool isDefined() const;

    Q_INVOKABLE void setName(const QString& name);
    Q_INVOKABLE void editValue();
    Q_INVOKABLE void deleteConstant();

Q_SIGNALS:
    void refreshed();

private:
    std::shared_ptr<ConstantEditViewController> m_controller;
    Subscription m_subscription;
};

} // namespace velmora
