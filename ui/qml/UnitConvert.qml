import QtQuick
import Velmora

// The unit converter: the number with its unit and the result, three wheels, and the keypad.
FocusScope {
    id: root

    required property UnitConvertAdapter screen
    readonly property size viewSize: Qt.size(width, height)

    focus: true
    onViewSizeChanged: screen.setViewSize(viewSize)
    Keys.onPressed: event => {
        event.accepted = screen.pressHardwareKey(event.key, event.text, event.modifiers)
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    UnitConvertLabel {
        frame: root.screen.leftSideFrame
        copiedText: root.screen.leftSide
        panelArtwork: root.screen.panelArtwork
        menuParent: root
        color: Theme.text
    }
    UnitConvertLabel {
        frame: root.screen.rightSideFrame
        copiedText: root.screen.rightSide
        panelArtwork: root.screen.panelArtwork
        menuParent: root
        color: Theme.accent
        font.bold: true
    }
    Text {
        x: root.screen.faultFrame.x
        y: root.screen.faultFrame.y
        width: root.screen.faultFrame.width
        height: root.screen.faultFrame.height
        visible: text !== ""
        text: root.screen.fault
        color: Theme.danger
        font.pixelSize: 12 * root.screen.scale
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 9
        elide: Text.ElideRight
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
    IconButton {
        x: root.screen.swapFrame.x
        y: root.screen.swapFrame.y
        width: root.screen.swapFrame.width
        height: root.screen.swapFrame.height
        icon: root.screen.swapArtwork
        spokenName: qsTr("Swap units")
        onPressed: root.screen.swapUnits()
    }
    Component {
        id: quantityRow
        WhatComponentView { unit: root.screen.scale }
    }
    Component {
        id: unitRow
        WheelTextRow { textSize: 14 * root.screen.scale }
    }
    Repeater {
        model: root.screen.wheels
        delegate: Wheel {
            required property int index
            required property var modelData
            x: modelData.frame.x
            y: modelData.frame.y
            width: modelData.frame.width
            height: modelData.frame.height
            rowHeight: root.screen.wheelRowHeight
            wheel: modelData.model
            delegate: index === 0 ? quantityRow : unitRow
        }
    }
    Repeater {
        model: root.screen.keys
        delegate: CalculatorButton {
            required property var modelData
            frame: modelData.frame
            shown: true
            repeats: false
            title: modelData.title
            titleFont: Qt.font({ pixelSize: 20 * root.screen.scale })
            titleColor: "white"
            face: modelData.face
            pressedFace: modelData.pressedFace
            sign: ""
            chosen: false
            spokenName: modelData.spokenName
            onPressed: root.screen.pressKey(title)
        }
    }
}
