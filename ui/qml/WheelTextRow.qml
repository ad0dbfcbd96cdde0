import QtQuick

// A row of a wheel that is a text. What is long takes more lines, then smaller letters.
WheelRow {
    id: root

    property double textSize: 14

    Text {
        anchors { fill: parent; leftMargin: 3; rightMargin: 3 }
        text: root.rowText
        color: "black"
        font.pixelSize: root.textSize
        fontSizeMode: Text.Fit
        minimumPixelSize: Math.min(10, root.textSize)
        maximumLineCount: 3
        wrapMode: Text.WordWrap
        elide: Text.ElideRight
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
