import QtQuick

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
    TapHandler {
        id: tap
        property bool wasHeld: false
        onPressedChanged: if (pressed) wasHeld = false
        onLongPressed: {
            wasHeld = true
            root.held()
        }
        onTapped: if (!wasHeld) root.tapped()
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad // a finger has no buttons to tell apart
        onTapped: root.held()
    }
}
