import QtQuick

// The tabs at the bottom of the scene, sharing its width equally.
Rectangle {
    id: root

    required property QtObject tabs

    color: "#17191c"

    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 0.5
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
