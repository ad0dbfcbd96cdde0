import QtQuick
import Velmora

// The entry line. A tap sets the cursor, a double tap or a long press opens the edit menu. The sign of the
// angle mode stands in a corner of it, to be tapped.
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
    Accessible.description: screen.wholeLine
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

        // Where the last line ends, for the caret of lines that begin at the left.
        property double lastLineY: 0
        property double lastLineEnd: 0

        onLineLaidOut: laidOut => {
            if (laidOut.isLast) {
                lastLineY = laidOut.y
                lastLineEnd = laidOut.x + laidOut.implicitWidth
            }
        }
        anchors.fill: parent
        text: root.screen.entryLines
        font: root.label.font
        color: root.label.textColor
        textFormat: Text.PlainText
        horizontalAlignment: root.label.alignment
        verticalAlignment: Text.AlignVCenter
        elide: root.label.elide
        Accessible.ignored: true
    }
    Text {
        id: angleSign

        readonly property var sign: root.screen.angleSign

        x: sign.frame.x - root.x
        y: sign.frame.y - root.y
        width: sign.frame.width
        height: sign.frame.height
        visible: root.screen.angleSignShown
        text: sign.text
        font: sign.font
        color: sign.textColor
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Rectangle {
        id: caret

        readonly property bool atRight: root.label.alignment === Text.AlignRight
        readonly property double lineHeight: line.contentHeight / Math.max(1, line.lineCount)

        visible: root.screen.cursorAtEnd && blink.lit
        x: atRight ? parent.width + 2 : Math.min(line.text === "" ? 0 : line.lastLineEnd + 1, parent.width)
        y: atRight ? 2 : (parent.height - line.contentHeight) / 2 + (line.lineCount > 1 ? line.lastLineY : 0) + 2
        width: 1.5
        height: (atRight ? parent.height : lineHeight) - 4
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
    TapArea {
        anchors.fill: parent
        holdable: true
        onTapped: (position, count) => {
            if (count === 1) {
                root.screen.tapEntryLine(root.x + position.x, root.y + position.y)
            } else if (count === 2) {
                root.screen.openEditMenu()
            }
        }
        onHeld: root.screen.openEditMenu()
    }
    TapArea {
        // Larger than its letters, for a finger: into the history above, or into the room below an editor's line.
        readonly property real room: 14

        visible: root.screen.angleSignShown
        x: angleSign.x - 10
        y: angleSign.y - (caret.atRight ? room : 0)
        width: angleSign.width + 20
        height: angleSign.height + room
        onTapped: root.screen.switchAngleMode()

        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Angle mode")
        Accessible.description: root.screen.angleModeName
        Accessible.onPressAction: root.screen.switchAngleMode()
    }
}
