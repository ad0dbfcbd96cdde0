import QtQuick
import Velmora

// A short message that goes away by itself.
ArtworkImage {
    id: root

    required property url panelArtwork

    function show(text) {
        message.text = text
        leaving.restart()
    }

    visible: leaving.running
    height: message.implicitHeight + 24
    source: visible ? panelArtwork : ""

    Accessible.ignored: false
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    Text {
        id: message
        anchors { left: parent.left; right: parent.right; margins: 14; verticalCenter: parent.verticalCenter }
        color: "white"
        font.pixelSize: 14
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }
    Timer {
        id: leaving
        interval: 3500
    }
    TapArea {
        anchors.fill: parent
        onTapped: leaving.stop()
    }
}
