import QtQuick

// One line of text. Where it is longer than its place it is written smaller, as far as 60 %; what does not fit
// then is pushed sideways, and fades where it goes on, so that no part of a number is read as the whole.
Flickable {
    id: root

    required property var label
    required property color color
    required property string text
    readonly property bool goesOn: content.width > width + 0.5
    readonly property real fitting: Math.max(0.6, Math.min(1, width / natural.advanceWidth))

    function pushTo(position) { contentX = Math.max(0, Math.min(contentWidth - width, position)) }

    x: label.frame.x
    y: label.frame.y
    width: label.frame.width
    height: label.frame.height
    contentWidth: content.width
    interactive: false // by the whole row
    clip: goesOn
    onTextChanged: contentX = 0

    TextMetrics {
        id: natural
        font: root.label.font
        text: root.text
    }
    Text {
        id: content
        width: Math.max(implicitWidth, root.width)
        height: root.height
        text: root.text
        font: root.fitting < 1
            ? Qt.font({ family: root.label.font.family,
                        pointSize: root.label.font.pointSize * root.fitting,
                        hintingPreference: root.label.font.hintingPreference })
            : root.label.font
        color: root.color
        textFormat: Text.PlainText
        horizontalAlignment: root.label.alignment
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Loader {
        active: root.goesOn
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
