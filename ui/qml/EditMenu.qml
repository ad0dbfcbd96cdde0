import QtQuick
import Velmora

// A menu that offers to copy what lies under a place of the screen. A tap beside it closes it.
Item {
    id: root

    required property rect target
    required property url panelArtwork

    signal copyChosen()
    signal closed()

    TapArea {
        anchors.fill: parent
        holdable: true
        onTapped: root.closed()
        onHeld: root.closed()
        WheelHandler {
            onWheel: root.closed()
        }
    }
    ArtworkImage {
        readonly property real above: root.target.y - height - 10

        x: Math.max(8, Math.min(root.width - width - 8, root.target.x + (root.target.width - width) / 2))
        y: above >= 4 ? above : root.target.y + root.target.height + 10
        width: copyText.implicitWidth + 44
        height: 44
        source: root.panelArtwork
        opacity: press.pressed ? 0.75 : 1

        Accessible.ignored: false
        Accessible.role: Accessible.MenuItem
        Accessible.name: copyText.text
        Accessible.onPressAction: root.copyChosen()

        Text {
            id: copyText
            anchors.centerIn: parent
            text: qsTr("Copy")
            color: "white"
            font.pixelSize: 16
            Accessible.ignored: true
        }
        TapArea {
            id: press
            anchors.fill: parent
            onTapped: root.copyChosen()
        }
    }
}
