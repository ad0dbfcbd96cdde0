import QtQuick

// One line of text that can be pushed sideways where it is longer than its place; it fades where it goes on.
Flickable {
    id: root

    required property var label
    required property string text

    x: label.frame.x
    y: label.frame.y
    width: label.frame.width
    height: label.frame.height
    contentWidth: content.width
    interactive: content.implicitWidth > width
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    clip: interactive
    onTextChanged: contentX = 0

    Text {
        id: content
        width: Math.max(implicitWidth, root.width)
        height: root.height
        text: root.text
        font: root.label.font
        color: root.label.textColor
        textFormat: Text.PlainText
        horizontalAlignment: root.label.alignment
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Loader {
        active: root.interactive
        sourceComponent: Item {
            x: root.contentX
            width: root.width
            height: root.height
            EdgeFade {
                visible: !root.atXBeginning
            }
            EdgeFade {
                anchors.right: parent.right
                visible: !root.atXEnd
                rotation: 180
            }
        }
    }
}
