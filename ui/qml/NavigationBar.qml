import QtQuick
import Velmora

// The bar above a screen: the way back, the title and the screen's own buttons.
Rectangle {
    id: root

    required property NavigationAdapter navigation

    height: navigation.barHeight
    visible: !navigation.barHidden
    color: "#22252a"

    Row {
        id: left
        anchors { left: parent.left; leftMargin: 12; top: parent.top; bottom: parent.bottom }
        spacing: 16
        BarTextButton {
            visible: root.navigation.backTitle !== ""
            height: parent.height
            text: "‹ " + root.navigation.backTitle
            Accessible.name: qsTr("Back to %1").arg(root.navigation.backTitle)
            onPressed: root.navigation.goBack()
        }
        Repeater {
            model: root.navigation.leftButtons
            delegate: BarTextButton {
                required property int index
                required property var modelData
                height: parent.height
                text: modelData.title
                enabled: modelData.enabled
                onPressed: root.navigation.pressLeftButton(index)
            }
        }
    }
    Text {
        anchors { left: left.right; right: right.left; leftMargin: 8; rightMargin: 8; verticalCenter: parent.verticalCenter }
        text: root.navigation.title
        color: "white"
        font { pixelSize: 17; bold: true }
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Row {
        id: right
        anchors { right: parent.right; rightMargin: 12; top: parent.top; bottom: parent.bottom }
        spacing: 16
        Repeater {
            model: root.navigation.rightButtons
            delegate: BarTextButton {
                required property int index
                required property var modelData
                height: parent.height
                text: modelData.title
                enabled: modelData.enabled
                onPressed: root.navigation.pressRightButton(index)
            }
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 0.5
        color: "#4a4f57"
    }
}
