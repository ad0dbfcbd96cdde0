import QtQuick
import Velmora

// A table that fills a screen: rows that scroll, with a mark of where the view is while it moves.
ListView {
    id: root

    property bool worksByKeys: false // since a key was pressed on one of its rows

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
