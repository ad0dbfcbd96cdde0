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
    Keys.forwardTo: tap

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    Text {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width)
        elide: Text.ElideRight
        text: root.text
        color: !root.enabled ? "#8b929c" : tap.pressed ? "#cfe2ff" : "#8fbcff"
        font { pixelSize: 17; bold: root.bold; underline: root.activeFocus && FocusMarks.shown }
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    TapArea {
        id: tap
        anchors.fill: parent
        onTapped: root.pressed()
    }
}
