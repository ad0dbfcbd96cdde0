import QtQuick
import Velmora

// The screens that have no place in the tab bar.
FocusScope {
    id: root

    required property MoreListAdapter screen

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
        topMargin: width < parent.width ? 20 : 0
        focus: true
        model: root.screen
        Accessible.name: qsTr("More")
        delegate: TableRow {
            id: row

            required property int index
            required property string title
            required property url icon

            width: table.width
            height: 50
            focus: ListView.isCurrentItem
            spokenName: title
            spokenRole: Accessible.Button
            onTapped: root.screen.select(index)

            ArtworkImage {
                id: image
                anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                width: 26
                height: 26
                source: row.icon
            }
            Text {
                anchors { left: image.right; leftMargin: 14; verticalCenter: parent.verticalCenter }
                text: row.title
                color: Theme.text
                font.pixelSize: Theme.textSize
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
            Text {
                anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                text: "›"
                color: Theme.secondaryText
                font.pixelSize: 20
                Accessible.ignored: true
            }
        }
    }
}
