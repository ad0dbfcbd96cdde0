import QtQuick
import Velmora

// A row of an equation list.
TableRow {
    id: root

    required property int index
    required property var variable
    required property var equation
    required property var equalsZero
    required property string spoken

    color: pressed ? Theme.pressed : "black"
    focus: ListView.isCurrentItem
    spokenName: spoken
    spokenDescription: qsTr("Opens the editor")
    spokenRole: Accessible.Button

    LabelText { label: root.variable }
    LabelText { label: root.equation }
    LabelText { label: root.equalsZero }
}
