import QtQuick
import Velmora

// The window's contents: the scene, scaled as a whole and centred on black.
Rectangle {
    id: root

    required property SceneAdapter scene
    required property QtObject tabs
    required property NavigationAdapter navigation
    required property QtAlertPresenter alerts

    function showScreen() {
        page.setSource(navigation.qmlFile, { screen: navigation.screen })
        const scrolling = scrollingPart()
        if (scrolling) {
            scrolling.scrollTo(navigation.scrollPosition)
        }
    }
    // What scrolls in the screen on display; only some screens have such a part.
    function scrollingPart() { return page.item ? page.item.scrollingPart : undefined }

    color: "black"
    Component.onCompleted: showScreen()

    Connections {
        target: root.navigation
        function onScreenAboutToChange() {
            const scrolling = root.scrollingPart()
            if (scrolling) {
                root.navigation.scrollPosition = scrolling.scrollPosition()
            }
        }
        function onScreenChanged() { root.showScreen() }
    }

    Item {
        x: root.scene.frame.x
        y: root.scene.frame.y
        width: root.scene.frame.width
        height: root.scene.frame.height
        transformOrigin: Item.TopLeft
        scale: root.scene.scale
        clip: true

        FocusScope {
            anchors.fill: parent
            focus: !root.alerts.shown
            enabled: !root.alerts.shown
            // What the screen on display has no use for.
            Keys.onPressed: event => {
                const withControl = event.modifiers === Qt.ControlModifier
                const leaves = event.key === Qt.Key_Escape || event.key === Qt.Key_Backspace
                    ? event.modifiers === Qt.NoModifier
                    : event.key === Qt.Key_Left && event.modifiers === Qt.AltModifier
                if (withControl && event.key >= Qt.Key_1 && event.key <= Qt.Key_9) {
                    root.tabs.tap(event.key - Qt.Key_1)
                    event.accepted = true
                } else if (leaves && root.navigation.backTitle !== "") {
                    root.navigation.goBack()
                    event.accepted = true
                }
            }

            NavigationBar {
                id: navigationBar
                anchors { top: parent.top; left: parent.left; right: parent.right }
                navigation: root.navigation
            }
            Loader {
                id: page
                anchors {
                    top: navigationBar.bottom
                    bottom: tabBar.top
                    left: parent.left
                    right: parent.right
                }
                focus: true
            }
            TabBar {
                id: tabBar
                anchors { bottom: parent.bottom; left: parent.left; right: parent.right }
                height: root.scene.tabBarHeight
                tabs: root.tabs
            }
        }
        Loader {
            anchors.fill: parent
            active: root.alerts.shown
            focus: active
            sourceComponent: AlertDialog {
                alerts: root.alerts
                panelArtwork: root.scene.panelArtwork
            }
        }
    }
}
