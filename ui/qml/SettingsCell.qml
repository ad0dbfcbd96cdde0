import QtQuick
import Velmora

// A header or a row of the settings, of the kind that the model names.
Loader {
    id: root

    required property int index
    required property string kind
    required property string title
    required property string value
    required property var items
    required property int chosen
    required property double fraction
    required property string explanation
    required property string placeholder
    required property bool usable
    required property SettingsTableAdapter screen

    enabled: usable
    opacity: usable ? 1 : 0.5
    sourceComponent: ({
        "header": header,
        "switch": switchRow,
        "segmented": segmentedRow,
        "pick": linkRow,
        "action": linkRow,
        "slider": sliderRow,
        "field": fieldRow,
        "text": textRow
    })[kind]

    Component {
        id: header
        Item {
            height: 44
            Text {
                anchors { left: parent.left; leftMargin: Theme.margin; bottom: parent.bottom; bottomMargin: 6 }
                text: root.title
                color: Theme.secondaryText
                font { pixelSize: Theme.detailSize; bold: true }
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
        }
    }
    Component {
        id: switchRow
        SwitchRow {
            title: root.title
            explanation: root.explanation
            checked: root.chosen === 1
            onChosen: on => root.screen.choose(root.index, on ? 1 : 0)
        }
    }
    Component {
        id: segmentedRow
        TableRow {
            id: segmented

            // Where both do not fit side by side, the choices stand below the title.
            readonly property bool stacked:
                segmentedTitle.implicitWidth + control.implicitWidth + 3 * Theme.margin > width

            height: stacked ? 86 : 50
            selectable: false
            Accessible.ignored: true
            Text {
                id: segmentedTitle
                x: Theme.margin
                height: 50
                verticalAlignment: Text.AlignVCenter
                text: root.title
                color: Theme.text
                font.pixelSize: Theme.textSize
                Accessible.ignored: true
            }
            SegmentedControl {
                id: control
                x: segmented.stacked ? Theme.margin : parent.width - width - Theme.margin
                y: segmented.stacked ? 44 : (50 - height) / 2
                width: segmented.stacked ? parent.width - 2 * Theme.margin : implicitWidth
                spokenName: root.title
                items: root.items
                currentIndex: root.chosen
                onChosen: index => root.screen.choose(root.index, index)
            }
        }
    }
    Component {
        id: linkRow
        LinkRow {
            title: root.title
            value: root.value
            onTapped: {
                // What is being typed in a field is handed on first; the row may be made anew by that.
                const screen = root.screen
                const index = root.index
                forceActiveFocus()
                screen.tap(index)
            }
        }
    }
    Component {
        id: sliderRow
        SliderRow {
            title: root.title
            fraction: root.fraction
            onMoved: fraction => root.screen.setFraction(root.index, fraction)
        }
    }
    Component {
        id: fieldRow
        TextFieldRow {
            title: root.title
            value: root.value
            placeholder: root.placeholder
            inputMethodHints: Qt.ImhPreferNumbers | Qt.ImhNoPredictiveText
            onCommitted: text => root.screen.setText(root.index, text)
        }
    }
    Component {
        id: textRow
        TableRow {
            height: 50
            selectable: false
            spokenName: root.title
            spokenRole: Accessible.StaticText
            Text {
                anchors { left: parent.left; leftMargin: Theme.margin; verticalCenter: parent.verticalCenter }
                text: root.title
                color: Theme.secondaryText
                font.pixelSize: Theme.textSize
                Accessible.ignored: true
            }
        }
    }
}
