import QtQuick
import Velmora

// A button that is only a picture.
Item {
    id: root

    property url icon
    property string spokenName

    signal pressed()

    activeFocusOnTab: true
    Keys.onSpacePressed: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onEnterPressed: pressed()

    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: tap.pressed ? Theme.chosen : Theme.pressed
        border { width: root.activeFocus ? 2 : 0; color: Theme.accent }
    }
    ArtworkImage {
        anchors.centerIn: parent
        width: parent.height * 0.6
        height: width
        source: root.icon
    }
    TapArea {
        id: tap
        anchors.fill: parent
        onTapped: root.pressed()
    }
}
