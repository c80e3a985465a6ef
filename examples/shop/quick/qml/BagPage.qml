import QtQuick
import Quorix.Shop

// The contents of the bag, their total price, and the return conditions.
ScrollPage {
    id: page

    Column {
        x: Math.max(20, (page.width - 560) / 2)
        width: page.width - 2 * x
        topPadding: 22

        Words {
            width: parent.width
            bottomPadding: 6
            text: Shop.words.bag
            font.pixelSize: 22
            font.weight: Font.DemiBold
        }

        Words {
            width: parent.width
            visible: Shop.bagCount === 0
            topPadding: 6
            bottomPadding: 16
            text: Shop.words.bagEmpty
            quiet: true
        }

        Repeater {
            model: Shop.bagLines

            BagLine {
                required property var modelData

                width: parent.width
                size: modelData.size
                count: modelData.count
                price: modelData.price
            }
        }

        Item {
            width: parent.width
            height: 54
            visible: Shop.bagCount > 0

            Words {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                text: Shop.words.total
                font.pixelSize: 16
                font.weight: Font.DemiBold
            }

            Words {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: Shop.total
                font.pixelSize: 16
                font.weight: Font.DemiBold
            }
        }

        Rectangle {
            width: parent.width
            height: 1
            color: Shop.colors.hairline
        }

        Words {
            width: parent.width
            topPadding: 22
            text: Shop.words.returns
            font.weight: Font.DemiBold
        }

        Words {
            width: parent.width
            topPadding: 6
            bottomPadding: 14
            text: Shop.words.returnsText
            quiet: true
            lineHeight: 1.35
        }

        UIInfoBox {
            width: parent.width
            locale: Shop.locale
            regularFont: Shop.regularFont
            semiBoldFont: Shop.semiBoldFont
            textSize: Shop.textSize
            appearance: Shop.dark ? UIInfoBox.Dark : UIInfoBox.Light
            layoutDirection: Shop.rightToLeft ? Qt.RightToLeft : Qt.LeftToRight
            animated: Shop.moving
        }
    }
}
