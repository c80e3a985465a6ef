import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Quorix.Shop

ApplicationWindow {
    id: root

    // Indexes of what the demo bar is set to.
    property int shopper: 0
    property int language: 0
    property int appearance: ScoreRow.System
    property int face: 0

    width: 430
    height: 860
    minimumWidth: 340
    minimumHeight: 480
    title: "Fjord & Thread"
    color: theme.page

    Theme {
        id: theme
        dark: root.appearance === ScoreRow.System ? Shop.desktopIsDark
                                                  : root.appearance === ScoreRow.Dark
    }

    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: Qt.quit()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        DemoBar {
            Layout.fillWidth: true
            shopper: root.shopper
            language: root.language
            appearance: root.appearance
            face: root.face
            onShopperChosen: (index) => root.shopper = index
            onLanguageChosen: (index) => root.language = index
            onAppearanceChosen: (index) => root.appearance = index
            onFaceChosen: (index) => root.face = index
        }

        ProductPage {
            Layout.fillWidth: true
            Layout.fillHeight: true
            colors: theme
            shopper: Shop.shoppers[root.shopper]
            language: Shop.languages[root.language]
            appearance: root.appearance
            face: Shop.faces[root.face]
        }
    }
}
