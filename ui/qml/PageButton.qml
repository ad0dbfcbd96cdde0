import QtQuick
import Velmora

// Beside a formula: puts it into the calculator's line.
Rectangle {
    id: root

    property string spokenName

    signal tapped()

    width: 44
    height: 44
    radius: 8
    color: tap.pressed ? Theme.pressed : Theme.surface
    activeFocusOnTab: true
    border { width: activeFocus ? 2 : 0; color: Theme.accent }
    Keys.onSpacePressed: tapped()
    Keys.onReturnPressed: tapped()
    Keys.onEnterPressed: tapped()

    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.focusable: true
    Accessible.onPressAction: tapped()

    Text {
        anchors.centerIn: parent
        text: "↵"
        color: Theme.accent
        font.pixelSize: 22
        Accessible.ignored: true
    }
    TapArea {
        id: tap
        anchors.fill: parent
        cancelsOnDrag: true
        onTapped: root.tapped()
    }
}
