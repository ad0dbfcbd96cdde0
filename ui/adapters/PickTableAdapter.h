#pragma once

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class OrvPickTableViewController;
class SceneAdapter;

/// The choices of a list pick row.
class PickTableAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QStringList items READ items CONSTANT)
    Q_PROPERTY(int chosen READ chosen NOTIFY chosenChanged)

public:
    PickTableAdapter(std::shared_ptr<OrvPickTableViewController> controller, const SceneAdapter& scene);

    QString title() const;
    QStringList items() const;
    int chosen() const;

    Q_INVOKABLE void choose(int index);

Q_SIGNALS:
    void chosenChanged();

private:
    std::shared_ptr<OrvPickTableViewController> m_controller;
};

} // namespace velmora
