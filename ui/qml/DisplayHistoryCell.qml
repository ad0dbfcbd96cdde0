import QtQuick
import Velmora

// A row of the history: the line at the left above its result at the right. A tap on one end inserts it;
// holding it offers to copy it. What does not fit is pushed sideways from anywhere on the row.
Item {
    id: root

    required property int index
    required property string inputText
    required property string outputText
    required property color outputColor
    required property Item table // a DisplayHistoryTable, which this file cannot name: it names this one

    signal tapped(bool left)
    signal held(bool left, Item end)

    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1 is %2").arg(inputText).arg(outputText)

    ScrollingLabel {
        id: input
        label: root.table.rowInput
        color: label.textColor
        text: root.inputText
    }
    ScrollingLabel {
        id: output
        label: root.table.rowOutput
        color: root.outputColor
        text: root.outputText
    }
    HistoryCellEnd {
        id: leftEnd
        frame: root.table.rowLeftButton
        spokenName: root.table.screen.leftButtonName
        spokenDescription: root.inputText
        onTapped: root.tapped(true)
        onHeld: root.held(true, leftEnd)
    }
    HistoryCellEnd {
        id: rightEnd
        frame: root.table.rowRightButton
        spokenName: root.table.screen.rightButtonName
        spokenDescription: root.outputText
        onTapped: root.tapped(false)
        onHeld: root.held(false, rightEnd)
    }
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 10 }
        color: "#34383e"
    }
    DragHandler {
        // The half of the row that is pushed, or the other one where only that goes on.
        property ScrollingLabel pushed: null
        property real start: 0

        target: null
        yAxis.enabled: false
        enabled: input.goesOn || output.goesOn
        onActiveChanged: {
            if (active) {
                const upper = centroid.pressPosition.y < root.height / 2
                pushed = input.goesOn && (upper || !output.goesOn) ? input : output
                start = pushed.contentX
            }
        }
        onActiveTranslationChanged: if (active) pushed.pushTo(start - activeTranslation.x)
    }
}
