import QtQuick
import Quorix.Shop
import QuorixWidgets

// The product page, with the score row below the price, and further information.
ScrollPage {
    id: page

    Rectangle {
        width: parent.width
        height: Math.min(width * 0.52, 300)
        color: Shop.colors.stage

        Image {
            anchors.fill: parent
            anchors.margins: 14
            fillMode: Image.PreserveAspectFit
            sourceSize.height: 2 * height
            source: "qrc:/shop/art/overshirt.svg"
            Accessible.role: Accessible.Graphic
            Accessible.name: Shop.words.productPicture
        }
    }

    Column {
        x: Math.max(20, (page.width - 560) / 2)
        width: page.width - 2 * x
        topPadding: 18

        Words {
            width: parent.width
            text: Shop.words.product
            font.pixelSize: 22
            font.weight: Font.DemiBold
        }

        Words {
            width: parent.width
            topPadding: 4
            text: Shop.price
            font.pixelSize: 17
        }

        ScoreSection {
            width: parent.width
        }

        Item { width: 1; height: 18 }

        SizePicker {
            width: parent.width
        }

        Words {
            width: parent.width
            topPadding: 24
            bottomPadding: 10
            text: Shop.words.goodToKnow
            font.weight: Font.DemiBold
        }

        InfoWidget {
            width: parent.width
            locale: Shop.locale
            regularFont: Shop.regularFont
            semiBoldFont: Shop.semiBoldFont
            textSize: Shop.textSize
            appearance: Shop.dark ? InfoWidget.Dark : InfoWidget.Light
            layoutDirection: Shop.rightToLeft ? Qt.RightToLeft : Qt.LeftToRight
            animated: Shop.moving
        }

        Words {
            width: parent.width
            topPadding: 20
            text: Shop.words.description
            quiet: true
            lineHeight: 1.35
        }
    }
}
