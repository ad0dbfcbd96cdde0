import QtQuick

// One of the two texts of the unit converter, which can be copied.
CopyPasteLabel {
    required property rect frame

    x: frame.x
    y: frame.y
    width: frame.width
    height: frame.height
    font.pixelSize: height * 0.85
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 10
    elide: Text.ElideMiddle
    verticalAlignment: Text.AlignVCenter
}
