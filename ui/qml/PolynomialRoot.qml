import QtQuick
import Velmora

// One root with what is proven of it. It can be copied in full, and put into the calculator's line.
Item {
    id: root

    required property var modelData
    required property url panelArtwork
    required property Item menuParent

    signal used()

    height: Math.max(48, texts.height + 12)

    Column {
        id: texts
        anchors { left: parent.left; leftMargin: Theme.margin; right: use.visible ? use.left : parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        spacing: 2
        CopyPasteLabel {
            width: parent.width
            panelArtwork: root.panelArtwork
            menuParent: root.menuParent
            copiedText: root.modelData.copyText
            text: root.modelData.label
            color: Theme.text
            font { pixelSize: 20 }
            wrapMode: Text.WrapAnywhere
            Accessible.name: root.modelData.label
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: root.modelData.moreExactly
            color: "#ffd966"
            font.pixelSize: 15
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: root.modelData.statement
            color: Theme.secondaryText
            font.pixelSize: Theme.detailSize
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    BarTextButton {
        id: use
        anchors { right: parent.right; rightMargin: Theme.margin; verticalCenter: parent.verticalCenter }
        height: 44
        visible: root.modelData.isUsable
        text: qsTr("Use ›")
        Accessible.name: qsTr("Put %1 into the calculator's line").arg(root.modelData.label)
        onPressed: root.used()
    }
    Rectangle {
        anchors { left: parent.left; leftMargin: Theme.margin; right: parent.right; bottom: parent.bottom }
        height: 1
        color: Theme.separator
    }
}
