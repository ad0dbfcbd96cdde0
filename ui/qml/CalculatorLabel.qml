import QtQuick
import Velmora

// The entry line. A tap sets the cursor, a double tap or a long press opens the edit menu.
Item {
    id: root

    required property KeyboardScreenAdapter screen
    readonly property var label: screen.entry

    x: label.frame.x
    y: label.frame.y
    width: label.frame.width
    height: label.frame.height
    activeFocusOnTab: true

    Accessible.role: Accessible.EditableText
    Accessible.name: qsTr("Line")
    Accessible.description: label.text
    Accessible.readOnly: false
    Accessible.focusable: true

    Rectangle {
        anchors.fill: parent
        visible: root.screen.editMenuShown
        color: "#4a6fa5"
        opacity: root.label.backgroundColor.a
    }
    Text {
        id: line

        anchors.fill: parent
        text: root.label.text
        font: root.label.font
        color: root.label.textColor
        textFormat: Text.PlainText
        horizontalAlignment: root.label.alignment
        verticalAlignment: Text.AlignVCenter
        elide: root.label.elide
        wrapMode: root.label.lineCount === 1 ? Text.NoWrap : Text.WrapAnywhere
        maximumLineCount: root.label.lineCount
        Accessible.ignored: true
    }
    Rectangle {
        id: caret
        visible: root.screen.cursorAtEnd && blink.lit && root.label.alignment === Text.AlignRight
        anchors { left: line.right; leftMargin: 2; verticalCenter: line.verticalCenter }
        width: 1.5
        height: parent.height - 4
        color: "#7db2ff"
    }
    Timer {
        id: blink
        property bool lit: true
        running: root.Window.active
        interval: 550
        repeat: true
        onTriggered: lit = !lit
        onRunningChanged: lit = true
    }
    Connections {
        target: root.screen
        function onEntryRefreshed() {
            blink.lit = true
            if (blink.running) {
                blink.restart()
            }
        }
    }
    TapHandler {
        onSingleTapped: eventPoint => {
            root.screen.tapEntryLine(root.x + eventPoint.position.x, root.y + eventPoint.position.y)
        }
        onDoubleTapped: root.screen.openEditMenu()
        onLongPressed: root.screen.openEditMenu()
    }
}
