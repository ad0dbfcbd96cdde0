import QtQuick

Rectangle {
    id: root
    color: "#333333"
    Grid {
        columns: 5
        Repeater {
            model: 40
            delegate: Rectangle {
                required property int index
                width: root.width / 5
                height: root.height / 8
                border.width: 1
                color: tap.pressed ? "#808080" : "#505050"
                Text {
                    anchors.centerIn: parent
                    text: parent.index
                    color: "white"
                    font.pixelSize: 20
                }
                TapHandler { id: tap }
            }
        }
    }
}
