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
    required property real titleColumn // points, one for all rows of the list
    required property int detailSize
    readonly property bool hasDetail: detail !== ""
    readonly property bool opens: kind === "link" || kind === "list" || screen.editing

    spokenName: spoken
    spokenRole: kind === "heading" ? Accessible.Heading : Accessible.ListItem
    focus: ListView.isCurrentItem
    color: kind === "heading" ? Theme.background : selectable && pressed ? Theme.pressed : Theme.surface

    Column {
        id: title
        anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        width: root.kind === "angles" ? 80 : root.hasDetail ? root.titleColumn : root.width - 3 * Theme.margin
        Text {
            width: parent.width
            text: root.title
            color: root.kind === "heading" ? Theme.secondaryText : Theme.text
            font { pixelSize: root.kind === "heading" ? Theme.detailSize : Theme.textSize; bold: root.kind === "heading" }
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            visible: root.value !== ""
            width: parent.width
            text: root.value
            color: Theme.accent
            font.pixelSize: 11
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    Text {
        anchors {
            left: title.right
            right: parent.right
            leftMargin: 10
            rightMargin: Theme.margin + 18
            verticalCenter: parent.verticalCenter
        }
        height: parent.height
        visible: root.hasDetail
        text: root.detail
        color: Theme.secondaryText
        font.pixelSize: root.detailSize
        wrapMode: Text.WordWrap
        elide: Text.ElideRight
        textFormat: Text.PlainText
        horizontalAlignment: root.detailAtRight ? Text.AlignRight : Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    Text {
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        visible: root.opens
        text: "›"
        color: Theme.secondaryText
        font.pixelSize: 20
        Accessible.ignored: true
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
