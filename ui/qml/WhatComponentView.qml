import QtQuick

// A row of the unit converter's first wheel: a quantity's picture above its name.
WheelRow {
    id: root

    property double unit: 1 // how large a point of a phone is here
    readonly property bool hasTwoWords: rowText.indexOf(" ") >= 0

    ArtworkImage {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: (root.hasTwoWords ? 1 : 2.5) * root.unit }
        width: (root.hasTwoWords ? 14 : 19) * root.unit
        height: width
        source: root.picture
    }
    Text {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: (root.hasTwoWords ? 1.5 : 3) * root.unit }
        height: (root.hasTwoWords ? 24 : 16) * root.unit
        text: root.rowText
        color: "black"
        font.pixelSize: 14 * root.unit
        fontSizeMode: Text.Fit
        minimumPixelSize: 10 * root.unit
        lineHeight: 0.9
        wrapMode: root.hasTwoWords ? Text.WordWrap : Text.NoWrap
        maximumLineCount: root.hasTwoWords ? 2 : 1
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
