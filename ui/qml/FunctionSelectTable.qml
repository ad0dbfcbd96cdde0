import QtQuick
import Velmora

// A list of functions or constants to choose from.
FocusScope {
    id: root

    required property FunctionSelectAdapter screen
    readonly property Item scrollingPart: table

    focus: true
    // The letters of a hardware keyboard go to the search.
    Keys.onPressed: event => {
        const isCommand = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier)
        if (search.visible && !search.typing && !isCommand && event.text > " ") {
            search.type(event.text)
            event.accepted = true
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    SearchField {
        id: search
        visible: root.screen.hasSearch
        width: table.width
        x: table.x
        text: root.screen.searchText
        onTextChanged: root.screen.searchText = text
        Keys.onDownPressed: table.forceActiveFocus()
    }
    Text {
        anchors { top: search.bottom; topMargin: 30; horizontalCenter: parent.horizontalCenter }
        visible: search.visible && search.text.trim() !== "" && table.count === 0
        text: qsTr("Nothing found")
        color: Theme.secondaryText
        font.pixelSize: Theme.textSize
    }
    Connections {
        target: root.screen
        function onRowsRefreshed() { table.measure() }
    }
    Table {
        id: table

        property real titleColumn: 0
        property int detailSize: Theme.detailSize
        readonly property real detailWidth: width - 2 * Theme.margin - titleColumn - 28

        function measure() {
            titleColumn = root.screen.titleColumn(width)
            detailSize = root.screen.detailSize(detailWidth)
        }
        onWidthChanged: measure()
        // On a wide screen a row stays narrow enough for the eye to follow from its title to its meaning.
        width: Math.min(parent.width, 640)
        height: parent.height - y
        y: search.visible ? search.height : 0
        x: (parent.width - width) / 2
        topMargin: width < parent.width ? 20 : 0 // there it is a sheet of its own
        focus: true
        model: root.screen
        keyNavigationEnabled: true
        Accessible.name: root.screen.title
        delegate: FunctionSelectCell {
            width: table.width
            height: rowHeight
            titleColumn: table.titleColumn
            detailSize: table.detailSize
            screen: root.screen
            onTapped: root.screen.select(index)
        }
    }
}
