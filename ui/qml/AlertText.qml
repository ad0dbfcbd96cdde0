import QtQuick

Text {
    width: parent.width
    leftPadding: 18
    rightPadding: 18
    color: "white"
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignHCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
