import QtQuick
import Velmora

// A row of a page, of the kind that the model names.
Loader {
    id: root

    required property var modelData
    required property int index
    required property PageAdapter screen
    required property Item page

    sourceComponent: ({
        "text": text,
        "heading": text,
        "formula": formula,
        "figure": figure,
        "keys": keys,
        "action": action
    })[modelData.kind]

    Component {
        id: text
        CopyPasteLabel {
            readonly property bool isHeading: root.modelData.kind === "heading"
            topPadding: isHeading && root.index > 0 ? 10 : 0
            copiedText: root.modelData.text
            panelArtwork: root.screen.panelArtwork
            menuParent: root.page
            color: isHeading ? Theme.text : "#d5dae1"
            font { pixelSize: (isHeading ? 18 : 15) * root.screen.textScale; bold: isHeading }
            lineHeight: isHeading ? 1 : 1.2
            wrapMode: Text.WordWrap
            Accessible.role: isHeading ? Accessible.Heading : Accessible.Paragraph
        }
    }
    Component {
        id: formula
        Item {
            // What is too wide for the screen is set smaller.
            readonly property double room: width - (root.modelData.insertable ? 52 : 0)
            readonly property double scaling: Math.min(root.screen.textScale, room / root.modelData.drawnWidth)
            implicitHeight: Math.max(label.height, root.modelData.insertable ? 44 : 0)
            CopyPasteLabel {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                width: artwork.width
                height: artwork.height + 12
                text: "" // drawn instead
                copiedText: root.modelData.text
                panelArtwork: root.screen.panelArtwork
                menuParent: root.page
                Accessible.name: root.modelData.spoken
                PageArtwork {
                    id: artwork
                    y: 6
                    width: root.modelData.drawnWidth * parent.parent.scaling
                    height: root.modelData.drawnHeight * parent.parent.scaling
                    page: root.screen
                    row: root.index
                    color: Theme.text
                }
            }
            PageButton {
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                visible: root.modelData.insertable
                spokenName: qsTr("Put into the line: %1").arg(root.modelData.spoken)
                onTapped: root.screen.insert(root.index)
            }
        }
    }
    Component {
        id: keys
        Flow {
            spacing: 4
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Press %1, the result is %2").arg(root.modelData.text).arg(root.modelData.shown)
            Repeater {
                model: root.modelData.text.split(" ")
                delegate: Rectangle {
                    required property string modelData
                    width: Math.max(30, cap.implicitWidth + 14) * root.screen.textScale
                    height: 30 * root.screen.textScale
                    radius: 6
                    color: Theme.bar
                    border { width: 1; color: Theme.separator }
                    Text {
                        id: cap
                        anchors.centerIn: parent
                        text: parent.modelData
                        color: Theme.text
                        font.pixelSize: 15 * root.screen.textScale
                        Accessible.ignored: true
                    }
                }
            }
            Text {
                height: 30 * root.screen.textScale
                leftPadding: 6
                verticalAlignment: Text.AlignVCenter
                text: "→ " + root.modelData.shown
                color: Theme.accent
                font.pixelSize: 15 * root.screen.textScale
                Accessible.ignored: true
            }
        }
    }
    Component {
        id: action
        LinkRow {
            title: root.modelData.text
            onTapped: root.screen.open(root.index)
        }
    }
    Component {
        id: figure
        Item {
            implicitHeight: picture.height + 8
            PageArtwork {
                id: picture
                anchors.centerIn: parent
                // On a wide screen a figure is larger, but not as wide as the text.
                width: Math.min(root.modelData.drawnWidth * (parent.width > 500 ? 1.5 : 1), parent.width)
                height: width * root.modelData.drawnHeight / Math.max(1, root.modelData.drawnWidth)
                page: root.screen
                row: root.index
                figureColors: [Theme.text, Theme.secondaryText, Theme.accent, "#ffb74d", "#81c784"]
                Accessible.role: Accessible.Graphic
                Accessible.name: root.modelData.spoken
            }
        }
    }
}
