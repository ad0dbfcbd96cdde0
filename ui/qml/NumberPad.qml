import QtQuick
import Velmora

// Keys for the number that is being typed, always in the same place at the foot of a screen, so that the
// fields never give way to a keyboard.
Rectangle {
    id: root

    property TextInput target // the field that is typed in

    readonly property var rows: [["1", "2", "3", "4", "5", "6", "−", "delete"],
                                 ["7", "8", "9", "0", ".", "E", "back", "next"]]
    readonly property var spoken: ({ "−": qsTr("Minus"), "delete": qsTr("Delete"), ".": qsTr("Point"),
                                     "E": qsTr("Times ten to the power"), "back": qsTr("Previous field"),
                                     "next": qsTr("Next field") })

    function press(key) {
        if (!target) {
            return
        }
        if (!target.activeFocus) {
            target.forceActiveFocus(Qt.MouseFocusReason)
        }
        if (key === "back" || key === "next") {
            target.nextItemInFocusChain(key === "next").forceActiveFocus(Qt.TabFocusReason)
            return
        }
        const nothingChosen = target.selectionStart === target.selectionEnd
        if (!nothingChosen) {
            target.remove(target.selectionStart, target.selectionEnd)
        } else if (key === "delete" && target.cursorPosition > 0) {
            target.remove(target.cursorPosition - 1, target.cursorPosition)
        }
        if (key !== "delete") {
            target.insert(target.cursorPosition, key === "−" ? "-" : key)
        }
        target.textEdited()
    }

    height: 2 * 46 + 4
    color: Theme.bar
    Accessible.ignored: true

    Grid {
        id: keys
        readonly property real keyWidth: Math.min(80, (root.width - 4) / 8)
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: 2 }
        columns: 8
        Repeater {
            model: root.rows[0].concat(root.rows[1])
            delegate: Item {
                id: key

                required property string modelData

                width: keys.keyWidth
                height: 46
                Accessible.role: Accessible.Button
                Accessible.name: root.spoken[modelData] || modelData
                Accessible.onPressAction: root.press(modelData)

                Rectangle {
                    anchors { fill: parent; margins: 2 }
                    radius: 6
                    color: touch.pressed ? "#5b6470" : "#3a3f47"
                }
                Text {
                    anchors.centerIn: parent
                    text: key.modelData === "delete" ? "⌫" : key.modelData === "back" ? "‹"
                        : key.modelData === "next" ? "›" : key.modelData
                    color: "white"
                    font.pixelSize: 20
                    Accessible.ignored: true
                }
                TapArea {
                    id: touch
                    anchors.fill: parent
                    onTapped: root.press(key.modelData)
                }
            }
        }
    }
}
