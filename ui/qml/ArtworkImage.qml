import QtQuick

// Artwork drawn for the very pixels that it fills.
Image {
    sourceSize: Qt.size(width, height)
    Accessible.ignored: true
}
