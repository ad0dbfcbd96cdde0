import QtQuick
import Velmora

// A few choices, one of them chosen.
FocusScope {
    id: root

    required property PickTableAdapter screen

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Table {
        id: table
        width: Math.min(parent.width, 640)
        height: parent.height
        x: (parent.width - width) / 2
        topMargin: 20
        focus: true
        model: root.screen.items
        Accessible.name: root.screen.title
        delegate: TableRow {
            id: row

            required property int index
            required property string modelData
            readonly property bool isChosen: index === root.screen.chosen

            width: table.width
            height: 50
            focus: ListView.isCurrentItem
            spokenName: modelData
            spokenRole: Accessible.RadioButton
            Accessible.checkable: true
            Accessible.checked: isChosen
            onTapped: root.screen.choose(index)

            Text {
                anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                text: row.modelData
                color: Theme.text
                font.pixelSize: Theme.textSize
                Accessible.ignored: true
            }
            Text {
                anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                visible: row.isChosen
                text: "✓"
                color: Theme.accent
                font { pixelSize: 18; bold: true }
                Accessible.ignored: true
            }
        }
    }
}
