import QtQuick
import Velmora

// A command of an edit menu.
Item {
    id: root

    required property string text

    signal chosen()

    width: label.implicitWidth + 44
    height: 44

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.onPressAction: chosen()

    Text {
        id: label
        anchors.centerIn: parent
        text: root.text
        color: press.pressed ? "#cfe2ff" : "white"
        font.pixelSize: 16
        Accessible.ignored: true
    }
    TapArea {
        id: press
        anchors.fill: parent
        onTapped: root.chosen()
    }
}
