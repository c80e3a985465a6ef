import QtQuick
import Quorix.Shop

// The shop below the demo bar: its header, one of its pages, and that page's buttons.
Rectangle {
    id: screen

    color: Shop.colors.page
    LayoutMirroring.enabled: Shop.rightToLeft
    LayoutMirroring.childrenInherit: true

    ShopHeader {
        id: header
        width: parent.width
    }

    ProductPage {
        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            bottom: footer.top
        }
        visible: !Shop.bagOpen
    }

    BagPage {
        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            bottom: footer.top
        }
        visible: Shop.bagOpen
    }

    Rectangle {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        height: 74
        color: Shop.colors.page

        Rectangle {
            width: parent.width
            height: 1
            color: Shop.colors.hairline
        }

        PrimaryButton {
            x: Math.max(20, (parent.width - 560) / 2)
            width: parent.width - 2 * x
            anchors.verticalCenter: parent.verticalCenter
            text: Shop.bagOpen ? Shop.words.keepShopping : Shop.words.addToBag
            onClicked: Shop.bagOpen ? Shop.bagOpen = false : Shop.addToBag()
        }
    }

    Notice {
        id: notice
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: footer.top
        anchors.bottomMargin: 14
    }

    Connections {
        target: Shop
        function onNoticed(words) { notice.show(words) }
    }
}
