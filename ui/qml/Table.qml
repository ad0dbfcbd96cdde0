import QtQuick
import Velmora

// A table that fills a screen: rows that scroll, with a mark of where the view is while it moves.
ListView {
    id: root

    // In points from the start, 0 at the top. The way there is taken in steps of less than a screen, so that
    // every row is made and measured; after a leap the list would only estimate where its rows stand.
    function scrollPosition() { return contentY - originY + topMargin }
    function scrollTo(position) {
        const target = originY - topMargin + position
        const step = Math.max(height / 2, 40)
        while (contentY < target) {
            contentY = Math.min(contentY + step, target)
        }
        returnToBounds()
    }

    clip: true
    boundsBehavior: contentHeight > height ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds
    reuseItems: false

    Accessible.role: Accessible.List

    Rectangle {
        parent: root
        z: 1
        visible: root.moving && root.visibleArea.heightRatio < 1
        x: root.width - width - 2
        y: root.visibleArea.yPosition * root.height
        width: 3
        height: root.visibleArea.heightRatio * root.height
        radius: 1.5
        color: Theme.secondaryText
    }
}
