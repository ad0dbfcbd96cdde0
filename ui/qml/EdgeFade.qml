import QtQuick

// Black at its left edge, clear at its right: text on black fades into it.
Rectangle {
    width: 28
    height: parent.height
    gradient: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0; color: "black" }
        GradientStop { position: 1; color: "transparent" }
    }
}
