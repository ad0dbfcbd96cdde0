#include "ui/touch/FocusMarks.h"

#include <QEvent>
#include <QGuiApplication>

#include <utility>

namespace velmora {

FocusMarks::FocusMarks(QObject* parent) : QObject(parent) {
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, [this] {
        if (m_keysWork) {
            setShown(true);
        }
    });
}

bool FocusMarks::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        m_keysWork = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        m_keysWork = false;
        setShown(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusMarks::setShown(bool shown) {
    if (std::exchange(m_isShown, shown) != shown) {
        Q_EMIT shownChanged();
    }
}

} // namespace velmora
