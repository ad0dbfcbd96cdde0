import QtQuick
import Velmora

// A button that is only a text, in a bar or a dialog.
Item {
    id: root

    property string text
    property bool bold: false

    signal pressed()

    implicitWidth: label.implicitWidth
    activeFocusOnTab: true
    Keys.onSpacePressed: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onEnterPressed: pressed()

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    Text {
        id: label
        anchors.centerIn: parent
        text: root.text
        color: !root.enabled ? "#8b929c" : tap.pressed ? "#cfe2ff" : "#8fbcff"
        font { pixelSize: 17; bold: root.bold; underline: root.activeFocus }
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    TapArea {
        id: tap
        anchors.fill: parent
        onTapped: root.pressed()
    }
}
