import QtQuick
import QtQuick.Layouts
import Quorix.Shop

// The demo's controls, separate from the shop and always dark.
Rectangle {
    id: bar

    color: "#20242f"
    implicitHeight: choices.implicitHeight + 20

    Rectangle {
        id: tag
        width: 24
        height: parent.height
        color: "#ffc24b"

        Text {
            anchors.centerIn: parent
            rotation: -90
            text: "DEMO"
            color: "#20242f"
            font.pixelSize: 11
            font.weight: Font.Bold
            font.letterSpacing: 2
        }
    }

    GridLayout {
        id: choices
        anchors {
            left: tag.right
            right: parent.right
            top: parent.top
            margins: 10
        }
        columns: 2
        columnSpacing: 8
        rowSpacing: 8

        Choice {
            share: 1.2
            caption: "Shopper"
            model: Shop.shoppers
            chosen: Shop.shopper
            onActivated: (index) => Shop.shopper = index
        }

        Choice {
            caption: "Language"
            model: Shop.languages
            chosen: Shop.language
            onActivated: (index) => Shop.language = index
        }

        Choice {
            share: 1.2
            caption: "Appearance"
            model: Shop.appearances
            chosen: Shop.appearance
            onActivated: (index) => Shop.appearance = index
        }

        Choice {
            caption: "Text"
            model: Shop.faces
            chosen: Shop.face
            onActivated: (index) => Shop.face = index
        }
    }
}
