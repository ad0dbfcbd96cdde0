import QtQuick
import Velmora

// The history as a transcript: the newest row at the bottom, right above the entry line.
Rectangle {
    id: root

    required property KeyboardScreenAdapter screen
    // Read once, not for every row.
    readonly property var rowInput: screen.rowInput
    readonly property var rowOutput: screen.rowOutput
    readonly property rect rowLeftButton: screen.rowLeftButton
    readonly property rect rowRightButton: screen.rowRightButton
    // The end of a row that is held to be copied from, in the screen's view; no row while it is -1.
    property int heldRow: -1
    property bool heldLeft: false
    property rect heldPlace

    // In points from the end, so that a history that was never moved stands at its newest row.
    function scrollPosition() { return list.fromEnd() }
    function scrollTo(position) {
        list.distance = position
        list.restore()
    }

    x: screen.historyFrame.x
    y: screen.historyFrame.y
    width: screen.historyFrame.width
    height: screen.historyFrame.height
    color: "black"
    clip: true

    Connections {
        target: root.screen
        function onHistoryRefreshed() {
            root.heldRow = -1 // rows may have moved
        }
        function onScrolledToEnd(animated) {
            list.distance = 0
            list.goToEnd(animated)
        }
    }

    ListView {
        id: list

        // From the end of the rows to the end of what is in view; it stays when rows or the place change.
        property real distance: 0

        function fromEnd() { return Math.max(0, originY + contentHeight - height - contentY) }
        function restore() {
            goToEnd(false)
            const target = Math.max(originY, contentY - distance)
            const step = Math.max(height / 2, 40) // less than a screen, so that every row is made
            while (contentY > target) {
                contentY = Math.max(contentY - step, target)
            }
        }
        function goToEnd(animated) {
            scrolling.stop()
            const from = contentY
            positionViewAtEnd()
            if (animated) {
                scrolling.from = from
                scrolling.to = contentY
                scrolling.start()
            }
        }

        objectName: "history"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Math.min(parent.height, root.screen.rowsHeight)
        model: root.screen.history
        header: root.screen.tipShown ? tipRow : null
        onHeightChanged: restore()
        onContentHeightChanged: if (!moving) restore()
        onMovementEnded: distance = fromEnd()

        Accessible.role: Accessible.List
        Accessible.name: qsTr("History")

        delegate: DisplayHistoryCell {
            width: list.width
            height: root.screen.rowHeight
            table: root
            onTapped: left => root.screen.tapHistoryRow(index, left)
            onHeld: (left, item) => {
                root.heldPlace = item.mapToItem(root.parent, 0, 0, item.width, item.height)
                root.heldLeft = left
                root.heldRow = index
            }
        }

        NumberAnimation {
            id: scrolling
            target: list
            property: "contentY"
            duration: 200
            easing.type: Easing.OutCubic
        }
    }
    Column {
        // What to try, where nothing has been computed yet.
        anchors.centerIn: parent
        spacing: 6
        visible: root.screen.hint !== ""
        Repeater {
            model: root.screen.hint === "" ? [] : root.screen.hint.split("\n")
            delegate: Text {
                required property string modelData
                width: root.width - 40
                text: modelData
                color: Theme.secondaryText
                font.pixelSize: 15
                wrapMode: Text.WordWrap
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }
    Component {
        id: tipRow
        DisplayTipCell {
            width: list.width
            height: root.screen.rowHeight
            label: root.screen.tip
        }
    }
    Rectangle {
        // Where in the history the view is, while it moves.
        visible: list.moving
        x: parent.width - width - 2
        y: list.y + list.visibleArea.yPosition * list.height
        width: 3
        height: list.visibleArea.heightRatio * list.height
        color: "#9aa2ad"
    }
}
