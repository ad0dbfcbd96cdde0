pragma Singleton
import QtQuick

// The colours and type sizes of every screen but the keys and the graph. Texts keep a contrast of at
// least 4.5 to 1 on each of the grounds.
QtObject {
    readonly property color background: "#101215" // of a screen
    readonly property color surface: "#1b1e23"    // of a row
    readonly property color pressed: "#2c313a"    // of a row under the finger
    readonly property color bar: "#22252a"
    readonly property color separator: "#2b2f36"
    readonly property color text: "#f4f6f8"
    readonly property color secondaryText: "#a9b1bc"
    readonly property color accent: "#8fbcff"     // what can be tapped: texts, switches, the chosen item
    readonly property color chosen: "#2f62a8"     // the ground of what is chosen or on
    readonly property color markedRow: "#1d3556"  // of a table, opened or reached by keys last
    readonly property color danger: "#ff8a80"

    readonly property int titleSize: 17
    readonly property int textSize: 16
    readonly property int detailSize: 13
    readonly property int margin: 16
}
