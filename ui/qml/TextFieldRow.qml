import QtQuick
import Velmora

// A row with a text that is typed. Enter and leaving the field hand the text on, Escape brings the former
// one back.
TableRow {
    id: root

    property string title
    property string value
    property string placeholder
    property int inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase

    signal committed(string text)

    function edit() {
        input.forceActiveFocus(Qt.MouseFocusReason)
        input.selectAll()
    }
    function restore() { input.text = root.value }
    function commit() {
        if (input.text !== root.value) {
            root.committed(input.text)
            restore() // what was refused goes, what was taken has become the value
        }
    }

    height: 50
    activeFocusOnTab: false
    Accessible.ignored: true
    onTapped: edit()
    onValueChanged: restore()

    Text {
        id: label
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        // All but the room that a value needs.
        width: Math.min(implicitWidth, root.width - 2 * Theme.margin - 12 - Math.max(40, 0.12 * root.width))
        text: root.title
        color: Theme.text
        font.pixelSize: Theme.textSize
        wrapMode: Text.Wrap
        maximumLineCount: 2
        lineHeight: 0.95
        fontSizeMode: Text.Fit
        minimumPixelSize: 12
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    TextInput {
        id: input
        anchors { left: label.right; right: parent.right; leftMargin: 12; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        clip: true
        color: Theme.accent
        selectionColor: Theme.chosen
        selectedTextColor: Theme.text
        font.pixelSize: Theme.textSize
        horizontalAlignment: TextInput.AlignRight
        inputMethodHints: root.inputMethodHints
        activeFocusOnTab: true
        selectByMouse: true
        Component.onCompleted: root.restore()
        onActiveFocusChanged: activeFocus ? selectAll() : root.commit()
        Keys.onReturnPressed: focus = false
        Keys.onEnterPressed: focus = false
        Keys.onEscapePressed: { root.restore(); focus = false }
        Accessible.role: Accessible.EditableText
        Accessible.name: root.title

        Text {
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: input.text === "" && !input.activeFocus
            text: root.placeholder
            color: Theme.secondaryText
            font: input.font
            Accessible.ignored: true
        }
    }
}
