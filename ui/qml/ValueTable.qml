import QtQuick
import Velmora

// The table of values: a bar with the names of the columns, and the rows below it. The ground is black, on
// which the four colours of the curves are read best.
FocusScope {
    id: root

    required property ValueTableAdapter screen
    readonly property Item scrollingPart: table

    focus: true
    Keys.onPressed: event => {
        const page = Math.floor(table.height / root.screen.rowHeight)
        event.accepted = root.screen.pressHardwareKey(event.key, event.text, event.modifiers, page)
        if (event.accepted && root.screen.markedRow >= 0) {
            table.positionViewAtIndex(root.screen.markedRow, ListView.Contain)
        }
    }

    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    Table {
        id: table
        anchors { top: bar.bottom; bottom: parent.bottom; left: parent.left; right: parent.right }
        focus: true
        model: root.screen
        reuseItems: true
        keyNavigationEnabled: false // keys move the mark, whose row has the focus
        currentIndex: root.screen.markedRow
        highlightFollowsCurrentItem: false
        cacheBuffer: height
        Accessible.name: root.screen.title
        onWidthChanged: root.screen.width = width
        Component.onCompleted: root.screen.width = width
        delegate: ValueCell {
            width: table.width
            height: root.screen.rowHeight
            onTapped: root.screen.select(index)
        }
    }
    Rectangle {
        id: bar
        width: parent.width
        height: root.screen.headerHeight
        color: Qt.rgba(0.5, 0.5, 0.5, 0.9)
        Repeater {
            model: root.screen.header
            delegate: LabelText {
                required property var modelData
                label: modelData
                Accessible.ignored: false
                Accessible.role: Accessible.ColumnHeader
                Accessible.name: text
            }
        }
    }
}
