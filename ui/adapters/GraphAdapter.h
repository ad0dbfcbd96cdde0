#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class GraphViewController;
class SceneAdapter;

/// The graph's screen as QML sees it; its GraphItem draws it and takes the fingers.
class GraphAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// What the picture tells, for those who do not see it.
    Q_PROPERTY(QString spokenGraph READ spokenGraph NOTIFY drawn)
    Q_PROPERTY(bool backgroundIsBlack READ isBackgroundBlack NOTIFY drawn)

public:
    GraphAdapter(std::shared_ptr<GraphViewController> controller, SceneAdapter& scene);
    ~GraphAdapter() override;

    GraphViewController& controller() const { return *m_controller; }
    QString spokenGraph() const;
    bool isBackgroundBlack() const;

    Q_INVOKABLE void showMenu();
    /// A key of a hardware keyboard as a key event tells it. False when it means nothing here.
    Q_INVOKABLE bool pressHardwareKey(int key, const QString& text, int modifiers);

Q_SIGNALS:
    /// A frame has been drawn.
    void drawn();
    /// The scene is scaled anew.
    void scaled();

private:
    std::shared_ptr<GraphViewController> m_controller;
};

} // namespace velmora
