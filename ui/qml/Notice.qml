import QtQuick
import Velmora

// A short message that goes away by itself, at the top of an area that a screen leaves free for it. It stays
// within the screen. It may offer one action, such as "Undo".
ArtworkImage {
    id: root

    required property url panelArtwork
    property rect area: Qt.rect(0, 0, parent.width, parent.height)
    property string action // the title of its button; empty: there is none

    signal actionChosen()

    function show(text, actionTitle, seconds) {
        message.text = text
        action = actionTitle || ""
        leaving.interval = 1000 * (seconds || 3.5)
        leaving.restart()
    }
    function hide() { leaving.stop() }

    z: 1
    visible: leaving.running
    width: area.width - 32
    height: Math.max(message.implicitHeight + 24, button.visible ? 44 : 0)
    x: area.x + (area.width - width) / 2
    y: Math.max(8, Math.min(area.y + 8, parent.height - height - 8))
    source: visible ? panelArtwork : ""

    Accessible.ignored: false
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    TapArea {
        anchors.fill: parent
        onTapped: root.hide()
    }
    Text {
        id: message
        anchors {
            left: parent.left
            right: button.visible ? button.left : parent.right
            margins: 14
            verticalCenter: parent.verticalCenter
        }
        color: "white"
        font.pixelSize: 14
        wrapMode: Text.Wrap
        maximumLineCount: 4
        elide: Text.ElideRight
        textFormat: Text.PlainText
        horizontalAlignment: button.visible ? Text.AlignLeft : Text.AlignHCenter
        Accessible.ignored: true
    }
    BarTextButton {
        id: button
        visible: root.action !== ""
        anchors { right: parent.right; rightMargin: 4; verticalCenter: parent.verticalCenter }
        width: implicitWidth + 20
        height: 44
        text: root.action
        bold: true
        onPressed: {
            root.hide()
            root.actionChosen()
        }
    }
    Timer {
        id: leaving
    }
}
