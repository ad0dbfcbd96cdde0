import QtQuick
import Velmora

// A polynomial equation: its coefficients, the equation that they make, and its roots with what is proven of
// each.
FocusScope {
    id: root

    required property PolynomialSolverAdapter screen
    readonly property bool isWide: width >= 700

    function solve() {
        if (screen.solve() && !isWide) {
            page.contentY = Math.max(0, Math.min(answer.y, page.contentHeight - page.height))
        }
    }
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
        contentHeight: columns.height + 16
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
                Text {
                    width: parent.width - 2 * Theme.margin
                    x: Theme.margin
                    topPadding: 6
                    bottomPadding: 6
                    text: root.screen.equation
                    color: Theme.accent
                    font.pixelSize: 20
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 13
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    textFormat: Text.PlainText
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Repeater {
                    id: fields
                    model: root.screen.fields
                    delegate: NumberField {
                        required property int index
                        required property var modelData

                        x: Theme.margin
                        width: columns.columnWidth - 2 * Theme.margin
                        labelWidth: 66
                        label: modelData.power
                        spokenName: modelData.spoken
                        text: modelData.text
                        problem: root.screen.problems[index]
                        onEdited: text => root.screen.setText(modelData.exponent, text)
                        onAccepted: root.solve()
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
                Item {
                    width: 1
                    height: 6
                }
                Rectangle {
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    height: 44
                    radius: 8
                    color: solveTouch.pressed ? "#4a80c8" : Theme.chosen
                    border { width: activeFocus && FocusMarks.shown ? 2 : 0; color: "white" }
                    activeFocusOnTab: true
                    Keys.forwardTo: solveTouch
                    Accessible.role: Accessible.Button
                    Accessible.name: qsTr("Solve")
                    Accessible.focusable: true
                    Accessible.onPressAction: root.solve()
                    Text {
                        anchors.centerIn: parent
                        text: qsTr("Solve")
                        color: "white"
                        font { pixelSize: 18; bold: true }
                        Accessible.ignored: true
                    }
                    TapArea {
                        id: solveTouch
                        anchors.fill: parent
                        cancelsOnDrag: true
                        onTapped: root.solve()
                    }
                }
            }
            Column {
                id: answer
                width: columns.columnWidth
                topPadding: 10
                Repeater {
                    model: root.screen.roots
                    delegate: PolynomialRoot {
                        required property int index
                        width: columns.columnWidth
                        panelArtwork: root.screen.panelArtwork
                        menuParent: root
                        onUsed: root.screen.useRoot(index)
                    }
                }
                Text {
                    x: Theme.margin
                    width: parent.width - 2 * Theme.margin
                    visible: text !== ""
                    topPadding: 6
                    text: root.screen.note
                    color: Theme.secondaryText
                    font.pixelSize: Theme.detailSize
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Item {
                    width: 1
                    height: 10
                }
                PictureItem {
                    x: Theme.margin
                    width: columns.columnWidth - 2 * Theme.margin
                    height: root.isWide ? 220 : 160
                    visible: root.screen.hasPicture
                    screen: root.screen
                    Accessible.role: Accessible.Graphic
                    Accessible.name: qsTr("The curve with its real roots")
                }
            }
        }
    }
    NumberPad {
        id: pad
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
