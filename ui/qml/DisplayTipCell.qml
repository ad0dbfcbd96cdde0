import QtQuick
import Velmora

// The row that tells where the settings are; its text shrinks to fit.
Item {
    id: root

    required property var label

    Text {
        x: root.label.frame.x
        y: root.label.frame.y
        width: root.label.frame.width
        height: root.label.frame.height
        leftPadding: 10
        rightPadding: 10
        text: root.label.text
        font: root.label.font
        color: root.label.textColor
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        fontSizeMode: Text.Fit
        minimumPointSize: root.label.minimumPointSize
        horizontalAlignment: root.label.alignment
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 10 }
        color: "#34383e"
    }
}
