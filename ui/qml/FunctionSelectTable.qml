import QtQuick
import Velmora

// A list of functions or constants to choose from.
FocusScope {
    id: root

    required property FunctionSelectAdapter screen
    readonly property Item scrollingPart: table

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Table {
        id: table
        // On a wide screen a row stays narrow enough for the eye to follow from its title to its meaning.
        width: Math.min(parent.width, 640)
        height: parent.height
        x: (parent.width - width) / 2
        topMargin: width < parent.width ? 20 : 0 // there it is a sheet of its own
        focus: true
        model: root.screen
        keyNavigationEnabled: true
        Accessible.name: root.screen.title
        delegate: FunctionSelectCell {
            width: table.width
            height: rowHeight
            screen: root.screen
            onTapped: root.screen.select(index)
        }
    }
}
