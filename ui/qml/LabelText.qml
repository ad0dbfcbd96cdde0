import QtQuick

// A label as its record says.
Text {
    id: root

    required property var label

    x: label.frame.x
    y: label.frame.y
    width: label.frame.width
    height: label.frame.height
    text: label.text
    color: label.textColor
    font: label.font
    fontSizeMode: label.lineCount === 1 ? Text.HorizontalFit : Text.Fit
    minimumPointSize: Math.max(1, label.minimumPointSize)
    horizontalAlignment: label.alignment
    verticalAlignment: Text.AlignVCenter
    wrapMode: label.lineCount === 1 ? Text.NoWrap : Text.Wrap
    elide: label.lineCount === 1 ? label.elide : Text.ElideRight
    textFormat: Text.PlainText
    Accessible.ignored: true
}
