import QtQuick
import Velmora

// The ground of a row in a table: its pressed state, its separator, its keyboard focus and what it says
// aloud. A row places its own texts on it.
Rectangle {
    id: root

    property bool selectable: true
    readonly property bool pressed: tap.pressed
    property string spokenName
    property string spokenDescription
    property int spokenRole: Accessible.ListItem

    signal tapped()

    color: selectable && tap.pressed ? Theme.pressed : Theme.surface
    activeFocusOnTab: selectable
    Keys.forwardTo: tap

    Accessible.role: spokenRole
    Accessible.name: spokenName
    Accessible.description: spokenDescription
    Accessible.focusable: selectable
    Accessible.onPressAction: if (selectable) tapped()

    Hairline {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: Theme.margin }
        color: Theme.separator
    }
    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: 3
        visible: root.activeFocus && FocusMarks.shown
        color: Theme.accent
    }
    TapArea {
        id: tap
        anchors.fill: parent
        enabled: root.selectable
        cancelsOnDrag: true
        onTapped: root.tapped()
    }
}
