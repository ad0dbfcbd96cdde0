import QtQuick
import Velmora

// A page of text to read.
FocusScope {
    id: root

    required property PageAdapter screen
    readonly property Item scrollingPart: page

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Flickable {
        id: page

        function scrollPosition() { return contentY }
        function scrollTo(position) {
            column.forceLayout() // whose height bounds the position
            contentY = Math.max(0, Math.min(position, contentHeight - height))
        }

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
                delegate: CopyPasteLabel {
                    required property var modelData
                    required property int index
                    width: column.width
                    topPadding: modelData.isHeading && index > 0 ? 10 : 0
                    copiedText: modelData.text
                    panelArtwork: root.screen.panelArtwork
                    menuParent: root
                    color: modelData.isHeading ? Theme.text : "#d5dae1"
                    font { pixelSize: modelData.isHeading ? 18 : 15; bold: modelData.isHeading }
                    lineHeight: modelData.isHeading ? 1 : 1.2
                    wrapMode: Text.WordWrap
                    Accessible.role: modelData.isHeading ? Accessible.Heading : Accessible.Paragraph
                }
            }
        }
    }
}
