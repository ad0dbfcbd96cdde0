import QtQuick
import Velmora

// A name and its value, and below them the buttons that copy it and put it into the calculator's line.
Item {
    id: root

    required property int index
    required property var label
    required property string name
    required property string value

    signal copied()
    signal entered()

    height: text.height + buttons.height + 22
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1 = %2").arg(name).arg(value)

    Text {
        id: text
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin; topMargin: 14 }
        text: root.label.text
        color: root.label.textColor
        font: root.label.font
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Row {
        id: buttons
        anchors { left: parent.left; top: text.bottom; leftMargin: Theme.margin }
        height: 44
        spacing: 28
        BarTextButton {
            height: parent.height
            text: qsTr("Copy")
            Accessible.name: qsTr("Copy the value of %1").arg(root.name)
            onPressed: root.copied()
        }
        BarTextButton {
            height: parent.height
            text: qsTr("Use in calculator")
            Accessible.name: qsTr("Use the value of %1 in the calculator").arg(root.name)
            onPressed: root.entered()
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
        height: 1
        color: Theme.separator
    }
}
