import QtQuick
import Velmora

// A field above a list: what is typed is searched for at once.
Rectangle {
    id: root

    property alias text: input.text
    property alias typing: input.activeFocus

    function type(characters) {
        input.forceActiveFocus()
        input.insert(input.length, characters)
    }

    height: 44
    color: Theme.background

    Rectangle {
        anchors { fill: parent; leftMargin: 8; rightMargin: 8; topMargin: 4; bottomMargin: 4 }
        radius: 8
        color: Theme.surface
        border { width: input.activeFocus ? 1 : 0; color: Theme.accent }

        TextInput {
            id: input
            anchors { left: parent.left; right: clear.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
            clip: true
            color: Theme.text
            selectionColor: Theme.chosen
            selectedTextColor: Theme.text
            font.pixelSize: Theme.textSize
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            selectByMouse: true
            activeFocusOnTab: true
            Keys.onEscapePressed: { clear(); focus = false }
            Accessible.role: Accessible.EditableText
            Accessible.name: qsTr("Search")
            Accessible.searchEdit: true

            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: input.text === ""
                text: qsTr("Search formulas, functions, constants")
                width: input.width
                elide: Text.ElideRight
                color: Theme.secondaryText
                font: input.font
                Accessible.ignored: true
            }
        }
        Item {
            id: clear
            anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
            width: 40
            visible: input.text !== ""
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Clear the search")
            Accessible.onPressAction: input.clear()
            Text {
                anchors.centerIn: parent
                text: "×"
                color: Theme.secondaryText
                font.pixelSize: 20
                Accessible.ignored: true
            }
            TapArea {
                anchors.fill: parent
                onTapped: input.clear()
            }
        }
    }
}
