import QtQuick
import Velmora

// A field for a number, with what it stands for before it. What was worked out for a field that holds nothing
// stands in it in italics behind an equals sign.
Item {
    id: root

    property string label
    property string spokenName
    property string text
    property string calculated
    property string problem
    property real labelWidth: 28
    readonly property alias input: input

    signal edited(string text)
    signal accepted()
    signal finished()

    implicitHeight: problem === "" ? 44 : 60
    onTextChanged: {
        if (input.text !== text) {
            input.text = text
        }
    }

    Text {
        id: name
        x: 0
        width: root.labelWidth
        height: 44
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignRight
        text: root.label
        color: Theme.text
        font { pixelSize: 18; italic: root.label.length === 1 }
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Rectangle {
        id: box
        anchors { left: name.right; leftMargin: 8; right: parent.right }
        y: 4
        height: 36
        radius: 6
        color: Theme.surface
        border {
            width: input.activeFocus || root.problem !== "" ? 2 : 1
            color: root.problem !== "" ? Theme.danger : input.activeFocus ? Theme.accent : "#4a4f57"
        }

        TextInput {
            id: input
            anchors { fill: parent; leftMargin: 9; rightMargin: mark.visible ? 26 : 9 }
            clip: true
            verticalAlignment: TextInput.AlignVCenter
            color: Theme.text
            selectionColor: Theme.chosen
            selectedTextColor: Theme.text
            font { pixelSize: 17; bold: true }
            maximumLength: 200
            inputMethodHints: Qt.ImhFormattedNumbersOnly | Qt.ImhNoPredictiveText
            activeFocusOnTab: true
            selectByMouse: true
            Component.onCompleted: text = root.text
            onTextEdited: root.edited(text)
            onActiveFocusChanged: activeFocus ? selectAll() : root.finished()
            Keys.onReturnPressed: root.accepted()
            Keys.onEnterPressed: root.accepted()
            Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Accessible.role: Accessible.EditableText
            Accessible.name: root.spokenName
            Accessible.description: root.problem !== "" ? root.problem
                : text === "" && root.calculated !== "" ? qsTr("calculated: %1").arg(root.calculated) : ""
        }
        Text {
            anchors { fill: input; leftMargin: 0 }
            visible: input.text === "" && root.calculated !== ""
            verticalAlignment: Text.AlignVCenter
            text: "= " + root.calculated
            color: Theme.secondaryText
            font { pixelSize: 17; italic: true }
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            id: mark
            anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
            visible: root.problem !== ""
            text: "!"
            color: Theme.danger
            font { pixelSize: 18; bold: true }
            Accessible.ignored: true
        }
    }
    Text {
        anchors { left: box.left; right: parent.right; top: box.bottom; topMargin: 1 }
        visible: root.problem !== ""
        text: root.problem
        color: Theme.danger
        font.pixelSize: 12
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
