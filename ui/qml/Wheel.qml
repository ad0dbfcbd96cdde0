import QtQuick
import QtQuick.Templates as T
import Velmora

// One wheel of a picker. A finger flicks it, a tap brings a row to the middle, the mouse's wheel and the
// arrows turn it row by row, and letters jump to the next row that begins with them. What comes to rest in
// the middle is chosen.
T.Tumbler {
    id: root

    required property WheelModel wheel
    property double rowHeight: 40
    property int value: currentIndex // for screen readers, with its range
    readonly property int minimumValue: 0
    readonly property int maximumValue: count - 1
    readonly property int stepSize: 1
    property bool isPlacing: true // while the rows are exchanged or placed nothing is chosen

    function place() {
        if (!wheel) {
            return // the wheel is going away
        }
        isPlacing = true
        currentIndex = wheel.selected
        list.positionViewAtIndex(wheel.selected, ListView.SnapPosition)
        isPlacing = false
    }
    function choose() {
        if (!isPlacing && !list.moving && currentIndex >= 0) {
            wheel.select(currentIndex)
        }
    }
    function turnTo(row) { currentIndex = Math.max(0, Math.min(count - 1, row)) }

    model: wheel
    wrap: false
    visibleItemCount: Math.max(1, Math.round(height / rowHeight))
    activeFocusOnTab: true
    focusPolicy: Qt.TabFocus
    onCurrentIndexChanged: choose()
    onHeightChanged: Qt.callLater(place)
    Component.onCompleted: place()

    Keys.onPressed: event => {
        const leaps = { [Qt.Key_PageUp]: -visibleItemCount, [Qt.Key_PageDown]: visibleItemCount,
                        [Qt.Key_Home]: -count, [Qt.Key_End]: count }
        if (leaps[event.key] !== undefined) {
            turnTo(currentIndex + leaps[event.key])
            event.accepted = true
        } else if (event.text !== "" && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier))) {
            const row = wheel.rowForTyped(event.text)
            event.accepted = row >= 0
            if (row >= 0) {
                turnTo(row)
            }
        }
    }

    Accessible.role: Accessible.SpinBox
    Accessible.name: wheel ? qsTr("%1, %2").arg(wheel.name).arg(wheel.selectedText) : ""
    Accessible.focusable: true
    Accessible.onIncreaseAction: turnTo(currentIndex + 1)
    Accessible.onDecreaseAction: turnTo(currentIndex - 1)

    Connections {
        target: root.wheel
        function onAboutToReload() { root.isPlacing = true }
        function onReloaded() { root.place() }
        function onSelectedChanged() {
            if (!root.isPlacing && root.currentIndex !== root.wheel.selected) {
                root.place()
            }
        }
    }

    background: Rectangle {
        color: "white"
        radius: 4
    }
    contentItem: ListView {
        id: list
        model: root.model
        delegate: root.delegate
        clip: true
        snapMode: ListView.SnapToItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (height - root.rowHeight) / 2
        preferredHighlightEnd: (height + root.rowHeight) / 2
        highlightMoveDuration: 120
        flickDeceleration: 1200
        maximumFlickVelocity: 4000
        boundsBehavior: Flickable.DragAndOvershootBounds
        onMovementEnded: root.choose()
    }

    // The row in the middle is the chosen one.
    Rectangle {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        height: root.rowHeight
        color: "#223d7fd0"
        border { width: root.visualFocus ? 2 : 0; color: "#2f62a8" }
        Rectangle {
            width: parent.width
            height: 1
            color: "#7f9cc4"
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: "#7f9cc4"
        }
    }
    MouseArea {
        property int turned: 0
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: event => {
            const notch = 120
            turned += event.angleDelta.y
            const rows = Math.trunc(turned / notch)
            turned -= rows * notch
            if (rows !== 0) {
                root.turnTo(root.currentIndex - rows)
            }
        }
        Accessible.ignored: true
    }
}
