import QtQuick
import Velmora

// A choice of a few, side by side.
RoundedFace {
    id: root

    property var items: []
    property int currentIndex: 0
    property string spokenName

    signal chosen(int index)

    // Every segment is as wide as the widest text asks for.
    readonly property real widestText: {
        let widest = 40
        for (const text of items) {
            widest = Math.max(widest, metrics.advanceWidth(text))
        }
        return Math.ceil(widest)
    }

    implicitWidth: (widestText + 20) * items.length + 4
    implicitHeight: 32
    radius: 8
    color: Theme.pressed
    Accessible.role: Accessible.Grouping
    Accessible.name: spokenName

    FontMetrics {
        id: metrics
        font { pixelSize: 14; bold: true }
    }
    Row {
        anchors { fill: parent; margins: 2 }
        Repeater {
            model: root.items
            delegate: RoundedFace {
                id: segment

                required property int index
                required property string modelData
                readonly property bool isCurrent: index === root.currentIndex

                width: (root.width - 4) / root.items.length
                height: root.height - 4
                radius: 6
                color: isCurrent ? Theme.chosen : "transparent"
                edgeWidth: 1.5
                edgeColor: activeFocus && FocusMarks.shown ? Theme.accent : "transparent"
                activeFocusOnTab: true
                Keys.forwardTo: tap
                Accessible.role: Accessible.RadioButton
                Accessible.name: modelData
                Accessible.checkable: true
                Accessible.checked: isCurrent
                Accessible.onPressAction: root.chosen(index)

                Text {
                    anchors { fill: parent; margins: 4 }
                    text: segment.modelData
                    color: Theme.text
                    font { pixelSize: 14; bold: segment.isCurrent }
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 9
                    textFormat: Text.PlainText
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
                TapArea {
                    id: tap
                    anchors.fill: parent
                    onTapped: root.chosen(segment.index)
                }
            }
        }
    }
}
