import QtQuick
import Velmora

// One way to count the time between two dates: its figures can be tapped.
TableRow {
    id: root

    required property int index
    required property var modelData

    signal figureTapped(int figure)

    height: 46
    selectable: false
    spokenName: modelData.title
    spokenRole: Accessible.Grouping

    Text {
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        text: root.modelData.title
        color: Theme.text
        font.pixelSize: Theme.textSize
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Row {
        anchors { right: parent.right; rightMargin: Theme.margin - 6; top: parent.top; bottom: parent.bottom }
        Repeater {
            model: root.modelData.figures
            delegate: BarTextButton {
                required property int index
                required property string modelData
                width: implicitWidth + 12
                height: parent.height
                text: modelData
                onPressed: root.figureTapped(index)
            }
        }
    }
}
