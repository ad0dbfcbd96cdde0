import QtQuick
import Velmora

// Two dates on wheels, and the time between them counted in several ways; a tap on a figure puts it into
// the calculator's line.
FocusScope {
    id: root

    required property DateCalculatorAdapter screen
    readonly property Item scrollingPart: page

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Flickable {
        id: page

        function scrollPosition() { return contentY }
        function scrollTo(position) { contentY = Math.max(0, Math.min(position, contentHeight - height)) }

        anchors.fill: parent
        contentHeight: column.height + Theme.margin
        clip: true
        focus: true
        Keys.onDownPressed: contentY = Math.min(contentY + 60, Math.max(0, contentHeight - height))
        Keys.onUpPressed: contentY = Math.max(contentY - 60, 0)

        Column {
            id: column
            width: Math.min(page.width, 640)
            x: (page.width - width) / 2

            Row {
                x: 8
                width: parent.width - 16
                spacing: 8
                Repeater {
                    model: root.screen.dates
                    delegate: DatePicker {
                        width: (parent.width - parent.spacing) / 2
                        rowCount: page.height < 450 ? 3 : 5
                        dateText: root.screen.dateTexts[index]
                        onTodayPressed: root.screen.setToday(index)
                    }
                }
            }
            Text {
                visible: text !== ""
                width: parent.width
                topPadding: 8
                leftPadding: Theme.margin
                rightPadding: Theme.margin
                text: root.screen.orderText
                color: Theme.secondaryText
                font.pixelSize: Theme.detailSize
                wrapMode: Text.WordWrap
                textFormat: Text.PlainText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Item {
                width: 1
                height: 12
            }
            Repeater {
                model: root.screen.rows
                delegate: DateDifferenceRow {
                    width: column.width
                    onFigureTapped: figure => root.screen.tapFigure(index, figure)
                }
            }
            SwitchRow {
                width: column.width
                title: qsTr("Count the last day too")
                checked: root.screen.countsLastDay
                onChosen: on => root.screen.countsLastDay = on
            }
        }
    }
}
