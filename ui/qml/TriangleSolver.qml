import QtQuick
import Velmora

// The triangle: drawn to scale, and the six measures that make it.
FocusScope {
    id: root

    required property TriangleSolverAdapter screen
    readonly property bool isWide: width >= 700

    function show(field) {
        const top = field.mapToItem(columns, 0, 0).y
        if (top < page.contentY) {
            page.contentY = Math.max(0, top - 8)
        } else if (top + 60 > page.contentY + page.height) {
            page.contentY = top + 60 - page.height
        }
    }

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Flickable {
        id: page
        anchors { top: parent.top; left: parent.left; right: parent.right; bottom: pad.top }
        contentHeight: columns.height + 12
        clip: true
        boundsBehavior: contentHeight > height ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds

        Grid {
            id: columns
            readonly property real columnWidth: root.isWide ? (Math.min(page.width, 1000) - 24) / 2 : Math.min(page.width, 640)
            anchors.horizontalCenter: parent.horizontalCenter
            columns: root.isWide ? 2 : 1
            columnSpacing: 24
            topPadding: 8

            Column {
                width: columns.columnWidth
                spacing: 4
                PictureItem {
                    id: picture
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    height: root.isWide ? 340 : Math.max(150, page.height - 3 * 44 - 70)
                    visible: root.screen.hasPicture
                    screen: root.screen
                    activeFocusOnTab: root.screen.canToggle
                    Keys.forwardTo: toggle
                    Accessible.role: root.screen.canToggle ? Accessible.Button : Accessible.Graphic
                    Accessible.name: qsTr("Triangle")
                    Accessible.description: root.screen.spokenPicture
                    Accessible.onPressAction: root.screen.toggleSolution()

                    TapArea {
                        id: toggle
                        anchors.fill: parent
                        enabled: root.screen.canToggle
                        cancelsOnDrag: true
                        onTapped: root.screen.toggleSolution()
                    }
                    Rectangle {
                        anchors.fill: parent
                        color: "transparent"
                        border { width: picture.activeFocus && FocusMarks.shown ? 2 : 0; color: Theme.accent }
                    }
                }
                Text {
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    text: root.screen.label
                    color: Theme.text
                    font.pixelSize: 14
                    wrapMode: Text.WordWrap
                    horizontalAlignment: root.screen.labelIsCentred ? Text.AlignHCenter : Text.AlignLeft
                    textFormat: Text.PlainText
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Text {
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    visible: text !== ""
                    text: root.screen.note
                    color: Theme.danger
                    font.pixelSize: 14
                    wrapMode: Text.WordWrap
                    textFormat: Text.PlainText
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
            }
            Column {
                width: columns.columnWidth
                Grid {
                    x: Theme.margin
                    columns: 2
                    columnSpacing: 14
                    flow: Grid.TopToBottom
                    rows: 3
                    Repeater {
                        model: root.screen.names
                        delegate: NumberField {
                            required property int index
                            required property string modelData

                            width: (columns.columnWidth - 2 * Theme.margin - 14) / 2
                            labelWidth: 18
                            label: modelData
                            spokenName: index < 3 ? qsTr("Side %1").arg(modelData) : qsTr("Angle %1").arg(modelData)
                            text: root.screen.typedTexts[index]
                            calculated: root.screen.calculatedTexts[index] + (index >= 3 && root.screen.calculatedTexts[index] !== "" ? "°" : "")
                            problem: root.screen.problems[index]
                            onEdited: text => root.screen.setText(index, text)
                            onFinished: root.screen.finishField(index)
                            onAccepted: input.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                            input.onActiveFocusChanged: {
                                if (input.activeFocus) {
                                    pad.target = input
                                    root.show(this)
                                }
                            }
                            Component.onCompleted: {
                                if (index === 0) {
                                    pad.target = input
                                    input.forceActiveFocus()
                                }
                            }
                        }
                    }
                }
                Text {
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    height: 30
                    verticalAlignment: Text.AlignVCenter
                    text: root.screen.area
                    color: Theme.text
                    font.pixelSize: 17
                    textFormat: Text.PlainText
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Item {
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    height: 44
                    BarTextButton {
                        anchors.left: parent.left
                        height: 44
                        text: qsTr("Clear calculated")
                        onPressed: root.screen.clearCalculated()
                    }
                    BarTextButton {
                        anchors.right: parent.right
                        height: 44
                        text: qsTr("Clear all")
                        onPressed: root.screen.clearAll()
                    }
                }
            }
        }
    }
    NumberPad {
        id: pad
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
