import QtQuick
import Velmora

// The values of one row of the table, each with what can be done with it.
FocusScope {
    id: root

    required property RowSelectedAdapter screen
    readonly property Item scrollingPart: table

    focus: true

    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    Table {
        id: table
        width: Math.min(parent.width, 640)
        height: parent.height
        x: (parent.width - width) / 2
        focus: true
        model: root.screen
        Accessible.name: root.screen.title
        delegate: RowSelectedCell {
            width: table.width
            onCopied: root.screen.copy(index)
            onEntered: root.screen.enter(index)
        }
    }
}
