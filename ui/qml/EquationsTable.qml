import QtQuick
import Velmora

// The equations, whose rows fill the screen together. The ground is black, on which the four colours of
// the curves are read best.
FocusScope {
    id: root

    required property EquationsAdapter screen

    focus: true

    Rectangle {
        anchors.fill: parent
        color: "black"
    }
    Table {
        id: table
        anchors.fill: parent
        focus: true
        interactive: false
        model: root.screen
        Accessible.name: root.screen.title
        onWidthChanged: root.screen.width = width
        Component.onCompleted: root.screen.width = width
        delegate: EquationCell {
            width: table.width
            height: root.screen.rowHeight
            onTapped: root.screen.select(index)
        }
    }
}
