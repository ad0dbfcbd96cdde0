#include "ui/touch/TapArea.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimerEvent>
#include <QTouchEvent>

#include <utility>

namespace velmora {

namespace {

constexpr double kApart = 30; // within which two taps are at one place, in the window's units

double distance(QPointF a, QPointF b) { return QLineF(a, b).length(); }

} // namespace

TapArea::TapArea(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptTouchEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

void TapArea::setHoldable(bool holdable) {
    setAcceptedMouseButtons(holdable ? Qt::LeftButton | Qt::RightButton : Qt::LeftButton);
    Q_EMIT configured();
}

void TapArea::setDraggable(bool draggable) {
    setKeepTouchGrab(draggable);
    setKeepMouseGrab(draggable);
    Q_EMIT configured();
}

// The press itself.

bool TapArea::isPressedBy(bool isTouch, int id) const {
    return m_press && m_press->isTouch == isTouch && m_press->id == id;
}

void TapArea::begin(const Press& press) {
    m_press = press;
    if (isHoldable() && (press.isTouch || press.id != int(Qt::RightButton))) {
        m_holding.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
    }
    updatePressed();
    if (isDraggable()) {
        Q_EMIT dragged(press.position);
    }
}

void TapArea::move(QPointF position, QPointF scenePosition) {
    const bool moved = position != m_press->position;
    m_press->position = position;
    const bool rests =
        distance(scenePosition, m_press->sceneStart) <= QGuiApplication::styleHints()->startDragDistance();
    if (!rests) {
        m_holding.stop();
        m_press->mayTap = m_press->mayTap && !m_cancelsOnDrag;
    }
    updatePressed();
    if (moved && isDraggable()) {
        Q_EMIT dragged(position);
    }
}

std::optional<TapArea::Tap> TapArea::end(QPointF position, QPointF scenePosition, quint64 time) {
    const bool isTap = m_press->mayTap && contains(position);
    m_press.reset();
    m_holding.stop();
    if (!isTap) {
        m_lastTap.reset();
    } else {
        const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        const bool follows = m_lastTap && time - m_lastTap->time < interval &&
                             distance(scenePosition, m_lastTap->scenePosition) < kApart;
        m_lastTap = Tap{scenePosition, time, follows ? m_lastTap->count + 1 : 1};
    }
    updatePressed();
    return m_lastTap;
}

void TapArea::cancel() {
    if (m_press) {
        m_press.reset();
        m_holding.stop();
        m_lastTap.reset();
        updatePressed();
        Q_EMIT canceled();
    }
}

void TapArea::updatePressed() {
    const bool isPressed = m_press && m_press->mayTap && contains(m_press->position);
    if (std::exchange(m_isPressed, isPressed) != isPressed) {
        Q_EMIT pressedChanged();
    }
}

// Where it comes from. A tap is told last, for it may be the end of this item.

void TapArea::touchEvent(QTouchEvent* event) {
    event->accept();
    if (event->type() == QEvent::TouchCancel) {
        cancel();
        return;
    }
    std::optional<Tap> tap;
    QPointF place;
    for (const QEventPoint& point : event->points()) {
        if (!isPressedBy(true, point.id()) || point.state() == QEventPoint::Pressed) {
            continue;
        }
        if (point.state() == QEventPoint::Released) {
            place = point.position();
            tap = end(place, point.scenePosition(), event->timestamp());
        } else {
            move(point.position(), point.scenePosition());
        }
    }
    for (const QEventPoint& point : event->points()) {
        if (!m_press && point.state() == QEventPoint::Pressed) {
            begin({true, point.id(), point.scenePosition(), point.position(), true});
        }
    }
    if (tap) {
        Q_EMIT tapped(place, tap->count);
    }
}

void TapArea::touchUngrabEvent() {
    if (m_press && m_press->isTouch) {
        cancel();
    }
}

void TapArea::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (!m_press) {
        begin({false, int(event->button()), event->scenePosition(), event->position(), true});
    }
}

void TapArea::mouseMoveEvent(QMouseEvent* event) {
    if (m_press && !m_press->isTouch) {
        move(event->position(), event->scenePosition());
    }
}

void TapArea::mouseReleaseEvent(QMouseEvent* event) {
    if (!isPressedBy(false, int(event->button()))) {
        return;
    }
    const QPointF place = event->position();
    const bool isRight = event->button() == Qt::RightButton;
    if (const auto tap = end(place, event->scenePosition(), event->timestamp())) {
        if (isRight) {
            m_lastTap.reset();
            Q_EMIT held(place);
        } else {
            Q_EMIT tapped(place, tap->count);
        }
    }
}

void TapArea::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void TapArea::mouseUngrabEvent() {
    if (m_press && !m_press->isTouch) {
        cancel();
    }
}

void TapArea::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (!isEnabled() || (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)) {
        event->ignore();
        return;
    }
    // A key that is held repeats itself, and would answer the question that its first press has asked.
    if (!event->isAutoRepeat()) {
        Q_EMIT tapped(QPointF(width(), height()) / 2, 1);
    }
}

void TapArea::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_holding.timerId()) {
        QQuickItem::timerEvent(event);
        return;
    }
    m_holding.stop();
    if (m_isPressed) {
        const QPointF place = m_press->position;
        m_press->mayTap = false;
        updatePressed();
        Q_EMIT held(place);
    }
}

void TapArea::itemChange(ItemChange change, const ItemChangeData& data) {
    const bool isLeaving = (change == ItemVisibleHasChanged || change == ItemEnabledHasChanged)
                               ? !data.boolValue
                               : change == ItemSceneChange;
    if (isLeaving) {
        cancel();
    }
    QQuickItem::itemChange(change, data);
}

} // namespace velmora
