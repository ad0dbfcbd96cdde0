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
            width: Math.min(implicitWidth, 0.4 * root.width) // a long one leaves room for the title
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
        readonly property real first: left.width > 0 ? left.x + left.width + 8 : 12
        readonly property real last: right.width > 0 ? right.x - 8 : root.width - 12

        // In the middle of the bar, as far as the buttons leave it there.
        x: Math.max(first, Math.min((root.width - width) / 2, last - width))
        width: Math.min(implicitWidth, last - first)
        anchors.verticalCenter: parent.verticalCenter
        text: root.navigation.title
        color: "white"
        font { pixelSize: 17; bold: true }
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
        textFormat: Text.PlainText
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
    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        color: "#4a4f57"
    }
}
