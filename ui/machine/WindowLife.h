#pragma once

#include <QObject>

class QWindow;

namespace velmora {

class VelmoraAppDelegate;

/// Tells the program when it comes on screen, goes to the background (its window is hidden, minimised or
/// another program has the focus) and ends.
class WindowLife final : public QObject {
    Q_OBJECT

public:
    WindowLife(QWindow& window, VelmoraAppDelegate& delegate);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setActive(bool active);
    void applicationStateChanged(Qt::ApplicationState state);
    void terminate();

    QWindow& m_window;
    VelmoraAppDelegate& m_delegate;
    bool m_active = false;
    bool m_hasBeenShown = false;
    bool m_terminated = false;
};

} // namespace velmora
