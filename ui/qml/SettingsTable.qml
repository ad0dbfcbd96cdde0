import QtQuick
import Velmora

// A table of settings in sections.
FocusScope {
    id: root

    required property SettingsTableAdapter screen
    readonly property Item scrollingPart: table

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
        TapArea {
            anchors.fill: parent
            onTapped: root.forceActiveFocus() // ends the typing in a field
        }
    }
    Table {
        id: table
        // On a wide screen a row stays narrow enough for the eye to follow from its title to its value.
        width: Math.min(parent.width, 640)
        height: parent.height
        x: (parent.width - width) / 2
        focus: true
        model: root.screen
        cacheBuffer: 4000 // all rows, so that a field keeps what is being typed
        Accessible.name: root.screen.title
        footer: Item {
            width: 1
            height: 24
        }
        delegate: SettingsCell {
            width: table.width
            screen: root.screen
        }
    }
}
