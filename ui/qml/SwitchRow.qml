import QtQuick
import Velmora

// A row that is on or off; a tap anywhere on it switches it.
TableRow {
    id: root

    property string title
    property string explanation
    property bool checked: false

    signal chosen(bool on)

    height: Math.max(50, texts.height + 20)
    spokenName: title
    spokenDescription: explanation
    spokenRole: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: checked
    onTapped: chosen(!checked)

    Column {
        id: texts
        anchors { left: parent.left; right: knobGround.left; leftMargin: Theme.margin; rightMargin: 12; verticalCenter: parent.verticalCenter }
        spacing: 4
        Text {
            width: parent.width
            text: root.title
            color: Theme.text
            font.pixelSize: Theme.textSize
            wrapMode: Text.WordWrap
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            visible: root.explanation !== ""
            text: root.explanation
            color: Theme.secondaryText
            font.pixelSize: Theme.detailSize
            wrapMode: Text.WordWrap
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    RoundedFace {
        id: knobGround
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        width: 50
        height: 30
        radius: 15
        color: root.checked ? Theme.chosen : Theme.pressed
        edgeColor: root.checked ? Theme.chosen : Theme.secondaryText
        RoundedFace {
            y: 3
            x: root.checked ? parent.width - width - 3 : 3
            width: 24
            height: 24
            radius: 12
            color: Theme.text
            Behavior on x { NumberAnimation { duration: 120 } }
        }
    }
}
