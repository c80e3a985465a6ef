import QtQuick
import Quorix.Shop

// The shop's name between the back button and the bag.
Item {
    id: header

    implicitHeight: 52

    IconButton {
        anchors.left: parent.left
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        visible: Shop.bagOpen
        name: "back"
        mirror: Shop.rightToLeft
        text: Shop.words.back
        onClicked: Shop.bagOpen = false
    }

    Words {
        anchors.centerIn: parent
        text: "FJORD & THREAD"
        font.pixelSize: 14
        font.weight: Font.DemiBold
        font.letterSpacing: 3
    }

    IconButton {
        id: bag
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        name: "bag"
        text: Shop.words.bagOf.arg(Shop.bagCount)
        onClicked: Shop.bagOpen = !Shop.bagOpen

        Badge {
            x: bag.mirrored ? 4 : parent.width - width - 4
            y: 5
            count: Shop.bagCount
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Shop.colors.hairline
    }
}
