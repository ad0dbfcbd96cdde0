import QtQuick
import Velmora

// The alert on screen. Nothing behind it can be touched until it is answered.
FocusScope {
    id: root

    required property QtAlertPresenter alerts
    required property url panelArtwork

    function focusOn(index) {
        const button = choices.itemAt(index)
        if (button) {
            button.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    focus: true
    Keys.onEscapePressed: alerts.cancel()

    Accessible.role: Accessible.AlertMessage
    Accessible.name: alerts.title
    Accessible.description: alerts.message

    Rectangle {
        anchors.fill: parent
        color: "black"
        opacity: 0.55
    }
    TapArea {
        anchors.fill: parent // takes whatever is not on a button
    }
    ArtworkImage {
        anchors.centerIn: parent
        width: 280
        height: content.height
        source: root.panelArtwork

        Column {
            id: content
            width: parent.width

            AlertText {
                visible: text !== ""
                topPadding: 18
                text: root.alerts.title
                font { pixelSize: 17; bold: true }
                Accessible.role: Accessible.Heading
            }
            AlertText {
                visible: text !== ""
                topPadding: root.alerts.title === "" ? 18 : 6
                text: root.alerts.message
                font.pixelSize: 14
            }
            Item { width: 1; height: 16 }
            Repeater {
                id: choices
                model: root.alerts.buttons
                delegate: BarTextButton {
                    required property int index
                    required property string modelData
                    width: content.width
                    height: 44
                    focus: index === 0
                    text: modelData
                    bold: index === 0
                    onPressed: root.alerts.choose(index)
                    Keys.onUpPressed: root.focusOn(index - 1)
                    Keys.onLeftPressed: root.focusOn(index - 1)
                    Keys.onDownPressed: root.focusOn(index + 1)
                    Keys.onRightPressed: root.focusOn(index + 1)
                    Hairline {
                        width: parent.width
                        atTop: true
                        color: "#5a616b"
                    }
                }
            }
        }
    }
}
