import QtQuick
import Velmora

// A menu that offers to copy what lies under a place of the screen, and to paste where that is possible. A tap
// beside it closes it.
Item {
    id: root

    required property rect target
    required property url panelArtwork
    property bool pasteOffered: false

    signal copyChosen()
    signal pasteChosen()
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
        width: commands.width
        height: 44
        source: root.panelArtwork

        Row {
            id: commands
            EditMenuItem {
                text: qsTr("Copy")
                onChosen: root.copyChosen()
            }
            EditMenuItem {
                visible: root.pasteOffered
                text: qsTr("Paste")
                onChosen: root.pasteChosen()
            }
        }
    }
}
