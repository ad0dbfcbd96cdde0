import QtQuick
import Velmora

// A keyboard screen: the history, the entry line and the keys below them.
FocusScope {
    id: root

    required property KeyboardScreenAdapter screen
    readonly property size viewSize: Qt.size(width, height)

    readonly property Item scrollingPart: history

    focus: true
    onViewSizeChanged: screen.setViewSize(viewSize)
    Keys.onPressed: event => {
        event.accepted = screen.pressHardwareKey(event.key, event.text, event.modifiers)
    }

    Connections {
        target: root.screen
        function onNotice(text) { notice.show(text) }
        function onUndoOffered(text, seconds) { notice.show(text, qsTr("Undo"), seconds) }
    }

    Rectangle {
        anchors.fill: parent
        color: root.screen.backgroundColor
    }
    DisplayHistoryTable {
        id: history
        screen: root.screen
    }
    Rectangle {
        x: root.screen.backingFrame.x
        y: root.screen.backingFrame.y
        width: root.screen.backingFrame.width
        height: root.screen.backingFrame.height
        color: root.screen.backgroundColor
        Hairline {
            width: parent.width
            atTop: true
            color: "#6a7078"
        }
    }
    CalculatorLabel {
        id: entryLine
        focus: true
        screen: root.screen
    }
    Repeater {
        model: root.screen.keys
        delegate: CalculatorButton {
            onPressed: root.screen.pressKey(index)
        }
    }
    Loader {
        anchors.fill: parent
        active: root.screen.editMenuShown
        sourceComponent: EditMenu {
            target: root.screen.editMenuTarget
            panelArtwork: root.screen.panelArtwork
            pasteOffered: root.screen.pasteOffered
            onCopyChosen: root.screen.copy()
            onPasteChosen: root.screen.paste()
            onClosed: root.screen.closeEditMenu()
        }
    }
    Loader {
        anchors.fill: parent
        active: history.heldRow >= 0
        sourceComponent: EditMenu {
            target: history.heldPlace
            panelArtwork: root.screen.panelArtwork
            onCopyChosen: {
                root.screen.copyHistoryRow(history.heldRow, history.heldLeft)
                history.heldRow = -1
            }
            onClosed: history.heldRow = -1
        }
    }
    Notice {
        id: notice
        panelArtwork: root.screen.panelArtwork
        // The oldest rows in view, or else what lies below the line: never the newest row, the line or a bar.
        area: root.screen.historyFrame.height > 0
            ? root.screen.historyFrame
            : Qt.rect(0, entryLine.y + entryLine.height, root.width, root.height - entryLine.y - entryLine.height)
        onActionChosen: root.screen.undoOffer()
    }
}
