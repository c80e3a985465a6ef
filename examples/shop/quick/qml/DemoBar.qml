import QtQuick
import QtQuick.Layouts
import Quorix.Shop

// The demo's controls, apart from the shop and always dark.
Rectangle {
    id: bar

    property alias shopper: shopperChoice.currentIndex
    property alias language: languageChoice.currentIndex
    property alias appearance: appearanceChoice.currentIndex
    property alias face: faceChoice.currentIndex

    signal shopperChosen(int index)
    signal languageChosen(int index)
    signal appearanceChosen(int index)
    signal faceChosen(int index)

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
            id: shopperChoice
            share: 1.2
            caption: "Shopper"
            model: Shop.shoppers
            textRole: "name"
            onActivated: (index) => bar.shopperChosen(index)
        }

        Choice {
            id: languageChoice
            caption: "Language"
            model: Shop.languages
            textRole: "name"
            onActivated: (index) => bar.languageChosen(index)
        }

        Choice {
            id: appearanceChoice
            share: 1.2
            caption: "Appearance"
            model: ["As the desktop", "Light", "Dark"]
            onActivated: (index) => bar.appearanceChosen(index)
        }

        Choice {
            id: faceChoice
            caption: "Text"
            model: Shop.faces
            textRole: "name"
            onActivated: (index) => bar.faceChosen(index)
        }
    }
}
