import QtQuick

// A row of the history: the line at the left above its result at the right. A tap on one end inserts it;
// holding it offers to copy it.
Item {
    id: root

    required property int index
    required property string inputText
    required property string outputText
    required property Item table // a DisplayHistoryTable, which this file cannot name: it names this one

    signal tapped(bool left)
    signal held(bool left, Item end)

    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1 is %2").arg(inputText).arg(outputText)

    ScrollingLabel {
        label: root.table.rowInput
        text: root.inputText
    }
    ScrollingLabel {
        label: root.table.rowOutput
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
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 10 }
        height: 0.5
        color: "#34383e"
    }
}
