import QtQuick
import Velmora

// The tabs at the bottom of the scene, sharing its width equally.
Rectangle {
    id: root

    required property QtObject tabs

    color: "#17191c"

    Hairline {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        atTop: true
        color: "#4a4f57"
    }
    Row {
        id: row
        anchors.fill: parent
        Repeater {
            id: repeater
            model: root.tabs
            delegate: TabBarItem {
                width: row.width / repeater.count
                height: row.height
                onPressed: root.tabs.tap(index)
            }
        }
    }
}
