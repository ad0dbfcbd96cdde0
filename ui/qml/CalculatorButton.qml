import QtQuick
import Velmora

// A key. It is pressed when the finger leaves it within its bounds, so sliding off cancels. One that repeats
// is pressed again and again while a finger rests on it.
Item {
    id: root

    required property int index
    required property rect frame
    required property bool shown
    required property string title
    required property font titleFont
    required property color titleColor
    required property url face
    required property url pressedFace
    required property url sign
    required property bool repeats
    required property bool chosen
    required property string spokenName
    readonly property bool down: chosen || tap.pressed

    signal pressed()

    x: frame.x
    y: frame.y
    width: frame.width
    height: frame.height
    visible: shown
    activeFocusOnTab: true
    Keys.onSpacePressed: pressed()

    Accessible.role: Accessible.Button
    Accessible.name: spokenName
    Accessible.focusable: true
    Accessible.checked: chosen
    Accessible.onPressAction: pressed()

    ArtworkImage {
        anchors.fill: parent
        source: root.down ? root.pressedFace : root.face
    }
    Text {
        anchors { fill: parent; leftMargin: 3; rightMargin: 3 }
        text: root.sign == "" ? root.title : ""
        font: root.titleFont
        color: root.titleColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        fontSizeMode: Text.HorizontalFit
        minimumPointSize: 8
        Accessible.ignored: true
    }
    Loader {
        active: root.sign != ""
        anchors.centerIn: parent
        width: parent.height * 0.62
        height: width
        sourceComponent: ArtworkImage {
            source: root.sign
        }
    }
    Rectangle {
        anchors { fill: parent; margins: 1.5 }
        visible: root.activeFocus && FocusMarks.shown
        color: "transparent"
        border { width: 2; color: "white" }
        radius: 6
    }
    Timer {
        id: repeating
        property bool hasPressed: false
        interval: hasPressed ? 90 : 450
        repeat: true
        running: root.repeats && tap.pressed
        onRunningChanged: if (running) hasPressed = false
        onTriggered: {
            hasPressed = true
            root.pressed()
        }
    }
    TapArea {
        id: tap
        anchors.fill: parent
        onTapped: if (!repeating.hasPressed) root.pressed()
    }
}
