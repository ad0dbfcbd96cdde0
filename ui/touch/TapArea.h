#pragma once

#include <QBasicTimer>
#include <QPointF>
#include <QQuickItem>

#include <optional>

namespace velmora {

/// A place that is tapped, by a finger or by the mouse. It takes one press at a time and grabs it alone; a
/// list around it may take the press away to scroll. (Qt's own tap handlers share their grabs, and Qt 6.4
/// follows such a grab to a handler that is gone once several fingers change in one frame.)
///
/// Keys forwarded to it tap it as well: Space, Return and Enter, once for each time they go down.
///
/// A press ends in a tap when it is released inside, however long it lasted. It is canceled when something
/// else takes it, when the area is hidden or disabled meanwhile (an alert disables all that it covers), and
/// with cancelsOnDrag when it moves further than a resting finger does.
class TapArea : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// Whether there is a press that would be a tap if it were released now.
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged)
    Q_PROPERTY(bool cancelsOnDrag MEMBER m_cancelsOnDrag NOTIFY configured)
    /// A press that rests is "held" instead of tapped; so is a click of the right mouse button.
    Q_PROPERTY(bool holdable READ isHoldable WRITE setHoldable NOTIFY configured)
    /// The press is a drag: dragged() tells its start and each move, and no list around may take it.
    Q_PROPERTY(bool draggable READ isDraggable WRITE setDraggable NOTIFY configured)

public:
    explicit TapArea(QQuickItem* parent = nullptr);

    bool isPressed() const { return m_isPressed; }
    bool isHoldable() const { return acceptedMouseButtons().testFlag(Qt::RightButton); }
    void setHoldable(bool holdable);
    bool isDraggable() const { return keepTouchGrab(); }
    void setDraggable(bool draggable);

Q_SIGNALS:
    void pressedChanged();
    void configured();
    /// The count is 2 for the second of two taps at one place in the time of a double click, and so on.
    void tapped(QPointF position, int count);
    void held(QPointF position);
    void dragged(QPointF position);
    void canceled();

protected:
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// A double click comes after the press that it is, so there is nothing left to do.
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    /// The finger or the button that presses.
    struct Press {
        bool isTouch;
        int id; ///< of the touch point, or the mouse button
        QPointF sceneStart;
        QPointF position;
        bool mayTap;
    };
    struct Tap {
        QPointF scenePosition;
        quint64 time;
        int count;
    };

    bool isPressedBy(bool isTouch, int id) const;
    void begin(const Press& press);
    void move(QPointF position, QPointF scenePosition);
    /// Ends the press. Where it was a tap, its number in a row of taps.
    std::optional<Tap> end(QPointF position, QPointF scenePosition, quint64 time);
    void cancel();
    void updatePressed();

    std::optional<Press> m_press;
    std::optional<Tap> m_lastTap;
    QBasicTimer m_holding;
    bool m_isPressed = false;
    bool m_cancelsOnDrag = false;
};

} // namespace velmora
