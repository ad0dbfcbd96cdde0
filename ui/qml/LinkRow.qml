import QtQuick
import Velmora

// A row that leads on, with the value that stands behind it.
TableRow {
    id: root

    property string title
    property string value

    height: 50
    spokenName: value === "" ? title : qsTr("%1, %2").arg(title).arg(value)
    spokenRole: Accessible.Button

    Text {
        id: label
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        text: root.title
        color: Theme.text
        font.pixelSize: Theme.textSize
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Text {
        anchors { left: label.right; right: mark.left; leftMargin: 12; rightMargin: 8; verticalCenter: parent.verticalCenter }
        text: root.value
        color: Theme.accent
        font.pixelSize: Theme.textSize
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignRight
        textFormat: Text.PlainText
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
