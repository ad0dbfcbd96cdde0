#include "ui/machine/WindowLife.h"

#include "app/VelmoraAppDelegate.h"
#include "platform/events/ActionScope.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace velmora {

WindowLife::WindowLife(QWindow& window, VelmoraAppDelegate& delegate)
    : m_window(window), m_delegate(delegate) {
    window.installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &WindowLife::applicationStateChanged);
    connect(qGuiApp, &QGuiApplication::aboutToQuit, this, &WindowLife::terminate);
    connect(&window, &QWindow::visibilityChanged, this, [this](QWindow::Visibility visibility) {
        if (visibility == QWindow::Hidden || visibility == QWindow::Minimized) {
            setActive(false);
        }
    });
}

bool WindowLife::eventFilter(QObject* watched, QEvent* event) {
    // The first time on screen counts even where no window manager hands out the focus.
    if (event->type() == QEvent::Expose && m_window.isExposed() && !m_hasBeenShown) {
        m_hasBeenShown = true;
        m_window.requestActivate(); // there, nobody else would send it the keys
        setActive(true);
    }
    return QObject::eventFilter(watched, event);
}

void WindowLife::applicationStateChanged(Qt::ApplicationState state) {
    if (m_hasBeenShown) {
        setActive(state == Qt::ApplicationActive);
    }
}

void WindowLife::setActive(bool active) {
    if (active == m_active || m_terminated) {
        return;
    }
    m_active = active;
    const ActionScope action;
    if (active) {
        m_delegate.applicationDidBecomeActive();
    } else {
        m_delegate.applicationDidEnterBackground();
    }
}

void WindowLife::terminate() {
    if (!m_terminated) {
        m_terminated = true;
        const ActionScope action;
        m_delegate.applicationWillTerminate();
    }
}

} // namespace velmora
