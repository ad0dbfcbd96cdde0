import QtQuick
import Velmora

// A page of text to read.
FocusScope {
    id: root

    required property PageAdapter screen

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Flickable {
        id: page
        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.margin
        boundsBehavior: Flickable.DragAndOvershootBounds
        focus: true
        clip: true
        Keys.onDownPressed: contentY = Math.min(contentY + 60, Math.max(0, contentHeight - height))
        Keys.onUpPressed: contentY = Math.max(contentY - 60, 0)

        Column {
            id: column
            // Long lines are hard to read, so a wide screen keeps margins.
            width: Math.min(page.width - 2 * Theme.margin, 640)
            x: (page.width - width) / 2
            y: Theme.margin
            spacing: 10
            Repeater {
                model: root.screen.paragraphs
                delegate: Text {
                    required property var modelData
                    required property int index
                    width: column.width
                    topPadding: modelData.isHeading && index > 0 ? 10 : 0
                    text: modelData.text
                    color: modelData.isHeading ? Theme.text : "#d5dae1"
                    font { pixelSize: modelData.isHeading ? 18 : 15; bold: modelData.isHeading }
                    lineHeight: modelData.isHeading ? 1 : 1.2
                    wrapMode: Text.WordWrap
                    textFormat: Text.PlainText
                    Accessible.role: modelData.isHeading ? Accessible.Heading : Accessible.Paragraph
                    Accessible.name: modelData.text
                }
            }
        }
    }
}
