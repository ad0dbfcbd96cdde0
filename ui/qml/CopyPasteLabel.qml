import QtQuick
import Velmora

// A text that can be copied: a double tap, a long press or the right mouse button opens the menu where it is.
Text {
    id: root

    required property url panelArtwork
    required property Item menuParent // what the menu lies over; a tap on it closes the menu
    property alias copiedText: label.text

    text: copiedText
    textFormat: Text.PlainText
    activeFocusOnTab: true
    Keys.onPressed: event => {
        if (event.matches(StandardKey.Copy)) {
            label.copy()
            event.accepted = true
        }
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.focusable: true

    CopyPasteLabelAdapter {
        id: label
    }
    Rectangle {
        anchors.fill: parent
        z: -1
        visible: label.menuShown || root.activeFocus
        color: Theme.accent
        opacity: 0.3
    }
    TapArea {
        anchors.fill: parent
        cancelsOnDrag: true
        holdable: true
        onTapped: (position, count) => {
            if (count === 1) {
                label.tapped()
            } else if (count === 2) {
                label.doubleTapped(position)
            }
        }
        onHeld: position => label.doubleTapped(position)
    }
    Loader {
        parent: root.menuParent
        anchors.fill: parent
        active: label.menuShown
        sourceComponent: EditMenu {
            target: root.mapToItem(root.menuParent, label.menuPoint.x, label.menuPoint.y, 1, 1)
            panelArtwork: root.panelArtwork
            onCopyChosen: label.copy()
            onClosed: label.tapped()
        }
    }
}
