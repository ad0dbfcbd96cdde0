import QtQuick
import Velmora

// A row with a knob that is pushed along a line.
TableRow {
    id: root

    property string title
    property double fraction: 0
    // What a screen reader asks a slider for.
    readonly property int value: Math.round(100 * fraction)
    readonly property int minimumValue: 0
    readonly property int maximumValue: 100
    readonly property int stepSize: 10

    signal moved(double fraction)

    height: 50
    selectable: false
    activeFocusOnTab: true
    spokenName: title
    spokenRole: Accessible.Slider
    Keys.onLeftPressed: moved(Math.max(0, fraction - 0.1))
    Keys.onRightPressed: moved(Math.min(1, fraction + 0.1))
    Keys.onPressed: event => {
        const places = { [Qt.Key_Home]: 0, [Qt.Key_End]: 1 }
        if (event.key in places) {
            moved(places[event.key])
            event.accepted = true
        }
    }
    Accessible.onDecreaseAction: moved(Math.max(0, fraction - 0.1))
    Accessible.onIncreaseAction: moved(Math.min(1, fraction + 0.1))

    Text {
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        text: root.title
        color: Theme.text
        font.pixelSize: Theme.textSize
        Accessible.ignored: true
    }
    Item {
        id: track
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        width: 0.45 * parent.width
        height: 40
        RoundedFace {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: 4
            radius: 2
            color: Theme.pressed
        }
        RoundedFace {
            x: root.fraction * (track.width - width)
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            radius: 12
            color: Theme.text
        }
        TapArea {
            anchors.fill: parent
            draggable: true
            onDragged: position => root.moved(Math.max(0, Math.min(1, (position.x - 12) / (width - 24))))
        }
    }
}
