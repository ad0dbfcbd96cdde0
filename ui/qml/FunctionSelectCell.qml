import QtQuick
import Velmora

// A row of a list: what is inserted or opened, and what it means.
TableRow {
    id: root

    required property int index
    required property string kind
    required property string title
    required property string detail
    required property bool detailAtRight
    required property string value
    required property double rowHeight
    required property string spoken
    required selectable
    required property FunctionSelectAdapter screen
    // Rows of functions keep their titles in one column, so that the meanings stand below each other.
    readonly property bool hasDetail: detail !== ""
    readonly property bool opens: kind === "link" || kind === "list" || screen.editing

    spokenName: spoken
    spokenRole: kind === "heading" ? Accessible.Heading : Accessible.ListItem
    focus: ListView.isCurrentItem
    color: kind === "heading" ? Theme.background : selectable && pressed ? Theme.pressed : Theme.surface

    Text {
        id: title
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        width: root.kind === "angles" ? 80
             : root.hasDetail ? Math.max(0.27 * root.width, Math.min(implicitWidth, 0.42 * root.width))
             : root.width - 3 * Theme.margin
        text: root.title
        color: root.kind === "heading" ? Theme.secondaryText : Theme.text
        font { pixelSize: root.kind === "heading" ? Theme.detailSize : Theme.textSize; bold: root.kind === "heading" }
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Text {
        anchors {
            left: title.right
            right: ending.left
            leftMargin: 10
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        height: parent.height
        visible: root.hasDetail
        text: root.detail
        color: Theme.secondaryText
        font.pixelSize: Theme.detailSize
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.WordWrap
        textFormat: Text.PlainText
        horizontalAlignment: root.detailAtRight ? Text.AlignRight : Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Row {
        id: ending
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        spacing: 8
        Text {
            visible: root.value !== ""
            width: Math.min(implicitWidth, 0.25 * root.width)
            text: root.value
            color: Theme.accent
            font.pixelSize: Theme.detailSize
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            visible: root.opens
            text: "›"
            color: Theme.secondaryText
            font.pixelSize: 20
            Accessible.ignored: true
        }
    }
    Loader {
        anchors { right: parent.right; margins: Theme.margin; verticalCenter: parent.verticalCenter }
        width: Math.min(300, root.width - 80 - 3 * Theme.margin)
        active: root.kind === "angles"
        sourceComponent: SegmentedControl {
            spokenName: root.title
            items: root.screen.angleModes
            currentIndex: root.screen.angleMode
            onChosen: index => root.screen.angleMode = index
        }
    }
}
