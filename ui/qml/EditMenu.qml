import QtQuick
import Velmora

// The edit menu over the entry line. A tap beside it closes it.
Item {
    id: root

    required property KeyboardScreenAdapter screen

    MouseArea {
        anchors.fill: parent
        onClicked: root.screen.closeEditMenu()
        Accessible.ignored: true
    }
    Item {
        id: target
        x: root.screen.editMenuTarget.x
        y: root.screen.editMenuTarget.y
        width: root.screen.editMenuTarget.width
        height: root.screen.editMenuTarget.height
    }
    ArtworkImage {
        anchors { right: target.right; rightMargin: -12; bottom: target.top; bottomMargin: 10 }
        width: copyText.implicitWidth + 36
        height: 38
        source: root.screen.panelArtwork
        opacity: press.pressed ? 0.75 : 1

        Accessible.ignored: false
        Accessible.role: Accessible.MenuItem
        Accessible.name: copyText.text
        Accessible.onPressAction: root.screen.copy()

        Text {
            id: copyText
            anchors.centerIn: parent
            text: qsTr("Copy")
            color: "white"
            font.pixelSize: 16
            Accessible.ignored: true
        }
        MouseArea {
            id: press
            anchors.fill: parent
            onClicked: root.screen.copy()
            Accessible.ignored: true
        }
    }
}
