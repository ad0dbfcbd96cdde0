import QtQuick
import Velmora

// One of the user's constants: its name, its value and its deletion.
FocusScope {
    id: root

    required property ConstantEditAdapter screen

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Column {
        width: Math.min(parent.width, 640)
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: 20 }
        TextFieldRow {
            width: parent.width
            title: qsTr("Name")
            value: root.screen.name
            placeholder: root.screen.plainName
            onCommitted: text => root.screen.setName(text)
        }
        TableRow {
            id: valueRow
            width: parent.width
            height: 50
            spokenName: qsTr("Value, %1").arg(root.screen.value === "" ? qsTr("not defined") : root.screen.value)
            spokenRole: Accessible.Button
            onTapped: root.screen.editValue()
            Text {
                id: valueTitle
                anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                text: qsTr("Value")
                color: Theme.text
                font.pixelSize: Theme.textSize
                Accessible.ignored: true
            }
            Text {
                anchors { left: valueTitle.right; right: mark.left; margins: 12; verticalCenter: parent.verticalCenter }
                text: root.screen.value === "" ? qsTr("not defined") : root.screen.value
                color: root.screen.value === "" ? Theme.secondaryText : Theme.accent
                font.pixelSize: Theme.textSize
                elide: Text.ElideRight
                textFormat: Text.PlainText
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
            Text {
                id: mark
                anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                text: "›"
                color: Theme.secondaryText
                font.pixelSize: 20
                Accessible.ignored: true
            }
        }
        Item {
            width: 1
            height: 24
        }
        TableRow {
            width: parent.width
            height: 50
            visible: root.screen.defined
            spokenName: qsTr("Delete constant")
            spokenRole: Accessible.Button
            onTapped: root.screen.deleteConstant()
            Text {
                anchors.centerIn: parent
                text: qsTr("Delete constant")
                color: Theme.danger
                font.pixelSize: Theme.textSize
                Accessible.ignored: true
            }
        }
    }
}
