import QtQuick
import Velmora

// A date on three wheels, with its weekday above and a way back to today.
Column {
    id: root

    required property int index
    required property var modelData
    required property string dateText
    property int rowCount: 3

    signal todayPressed()

    Item {
        width: parent.width
        height: 40
        Text {
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            text: root.modelData.heading
            color: Theme.text
            font { pixelSize: Theme.textSize; bold: true }
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        BarTextButton {
            anchors.right: parent.right
            width: implicitWidth + 8
            height: parent.height
            text: qsTr("Today")
            Accessible.name: qsTr("%1 today").arg(root.modelData.heading)
            onPressed: root.todayPressed()
        }
    }
    Row {
        id: wheels
        width: parent.width
        spacing: 3
        Repeater {
            model: root.modelData.wheels
            delegate: Wheel {
                required property int index
                required property var modelData
                // A day, a month's name, a year.
                width: (wheels.width - 2 * wheels.spacing) * [0.25, 0.43, 0.32][index]
                height: root.rowCount * rowHeight
                wheel: modelData.model
                delegate: dateRow
            }
        }
    }
    Text {
        width: parent.width
        topPadding: 6
        text: root.dateText
        color: Theme.secondaryText
        font.pixelSize: Theme.detailSize
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 9
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Component {
        id: dateRow
        WheelTextRow { textSize: 16 }
    }
}
