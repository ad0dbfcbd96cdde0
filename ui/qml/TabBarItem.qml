import QtQuick
import Velmora

// A tab: its icon above its title, in the accent colour while it is selected.
Item {
    id: root

    required property int index
    required property string title
    required property url icon
    required property bool selected

    signal pressed()

    activeFocusOnTab: true
    Keys.forwardTo: tap

    Accessible.role: Accessible.PageTab
    Accessible.name: title
    Accessible.selected: selected
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    ArtworkImage {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: 5 }
        width: 26
        height: 26
        source: root.icon
        opacity: root.selected ? 1 : 0.65
    }
    Text {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 4 }
        text: root.title
        color: root.selected ? "white" : "#a7aeb8"
        font { pixelSize: 11; underline: root.activeFocus && FocusMarks.shown }
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    TapArea {
        id: tap
        anchors.fill: parent
        onTapped: root.pressed()
    }
}
