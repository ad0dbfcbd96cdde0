import QtQuick
import Velmora

// A row of the table of values.
TableRow {
    id: root

    required property int index
    required property var labels
    required property string spoken
    required property bool marked
    required selectable

    color: pressed ? Theme.pressed : marked ? Theme.markedRow : "black"
    activeFocusOnTab: false // the arrows move the mark instead
    spokenName: spoken
    spokenDescription: selectable ? qsTr("Opens the values of this row") : ""
    spokenRole: selectable ? Accessible.Row : Accessible.StaticText

    Repeater {
        model: root.labels.length
        delegate: LabelText {
            required property int index
            label: root.labels[index]
        }
    }
}
