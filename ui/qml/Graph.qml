import QtQuick
import Velmora

// The graph fills the screen; what can be done with it stands behind the button in its corner.
FocusScope {
    id: root

    required property GraphAdapter screen

    focus: true
    Keys.onPressed: event => {
        event.accepted = screen.pressHardwareKey(event.key, event.text, event.modifiers)
    }

    GraphItem {
        anchors.fill: parent
        screen: root.screen
        focus: true
        covered: Qt.rect(menuButton.x + face.x, menuButton.y + face.y, face.width, face.height)
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Graph")
        Accessible.description: root.screen.spokenGraph
        Accessible.focusable: true
    }
    Item {
        id: menuButton

        function press() { root.screen.showMenu() }

        width: 44
        height: 44
        anchors { right: parent.right; bottom: parent.bottom }
        activeFocusOnTab: true
        Keys.onSpacePressed: press()
        Keys.onReturnPressed: press()
        Keys.onEnterPressed: press()
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Graph menu")
        Accessible.focusable: true
        Accessible.onPressAction: press()

        Rectangle {
            id: face
            anchors.centerIn: parent
            width: 30
            height: 30
            radius: 15
            color: tap.pressed ? "#c03d6fb0" : "#a0606874"
            border { width: menuButton.activeFocus && FocusMarks.shown ? 2 : 0; color: Theme.accent }
            Row {
                anchors.centerIn: parent
                spacing: 3
                Repeater {
                    model: 3
                    delegate: Rectangle {
                        width: 4
                        height: 4
                        radius: 2
                        color: "white"
                    }
                }
            }
        }
        TapArea {
            id: tap
            anchors.fill: parent
            onTapped: menuButton.press()
        }
    }
}
