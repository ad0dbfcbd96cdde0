import QtQuick
import Velmora

// The invisible button over one end of a row. Dragging from it scrolls the history; resting on it, or the
// right mouse button, holds it.
Item {
    id: root

    required property rect frame
    required property string spokenName
    required property string spokenDescription

    signal tapped()
    signal held()

    x: frame.x
    y: frame.y
    width: frame.width
    height: frame.height

    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.description: spokenDescription
    Accessible.onPressAction: tapped()

    Rectangle {
        anchors.fill: parent
        visible: tap.pressed
        color: "white"
        opacity: 0.14
    }
    TapArea {
        id: tap
        anchors.fill: parent
        cancelsOnDrag: true
        holdable: true
        onTapped: root.tapped()
        onHeld: root.held()
    }
}
