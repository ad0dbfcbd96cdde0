import QtQuick
import Velmora

// A page of text, formulas and figures to read.
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
                model: root.screen.rows
                delegate: PageRow {
                    width: column.width
                    screen: root.screen
                    page: root
                }
            }
        }
    }
}
