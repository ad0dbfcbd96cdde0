import QtQuick
import QtQuick.Templates as T
import Velmora

// The ground of a row on a wheel: it fades towards the wheel's ends, and a tap brings it to the middle.
Item {
    id: root

    required property int index
    required property string rowText
    required property url picture
    readonly property Item wheel: T.Tumbler.tumbler

    width: wheel ? wheel.width : 0
    height: wheel ? wheel.rowHeight : 0
    opacity: wheel ? Math.max(0.15, 1 - Math.abs(T.Tumbler.displacement) / (wheel.visibleItemCount / 2 + 0.8)) : 1

    Accessible.ignored: true

    TapArea {
        anchors.fill: parent
        cancelsOnDrag: true
        onTapped: root.wheel.turnTo(root.index)
    }
}
