import QtQuick
import QtQuick.Controls.Basic

// The shop's page: the product, with the score row below its price.
Rectangle {
    id: page

    required property Theme colors
    required property var shopper
    required property var language
    required property int appearance
    required property var face

    property int bagCount: 0

    color: colors.page
    LayoutMirroring.enabled: language.rightToLeft
    LayoutMirroring.childrenInherit: true

    ShopHeader {
        id: header
        width: parent.width
        bagCount: page.bagCount
        colors: page.colors
    }

    Flickable {
        anchors {
            left: parent.left
            right: parent.right
            top: header.bottom
            bottom: footer.top
        }
        contentHeight: product.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }

        Column {
            id: product
            width: parent.width
            bottomPadding: 20

            Rectangle {
                width: parent.width
                height: Math.min(width * 0.64, 340)
                color: page.colors.stage

                Image {
                    anchors.fill: parent
                    anchors.margins: 14
                    fillMode: Image.PreserveAspectFit
                    sourceSize.height: 2 * height
                    source: "qrc:/shop/art/overshirt.svg"
                    Accessible.role: Accessible.Graphic
                    Accessible.name: "Linen overshirt in clay"
                }
            }

            Column {
                id: details
                x: Math.max(20, (parent.width - 560) / 2)
                width: parent.width - 2 * x
                topPadding: 18

                Text {
                    width: parent.width
                    text: "Linen overshirt"
                    color: page.colors.ink
                    font.pixelSize: 22
                    font.weight: Font.DemiBold
                    horizontalAlignment: Text.AlignLeft
                }

                Text {
                    width: parent.width
                    topPadding: 4
                    text: page.shopper.price
                    color: page.colors.ink
                    font.pixelSize: 17
                    horizontalAlignment: Text.AlignLeft
                }

                ScoreSection {
                    width: parent.width
                    colors: page.colors
                    shopper: page.shopper
                    language: page.language
                    appearance: page.appearance
                    face: page.face
                }

                Item { width: 1; height: 18 }

                SizePicker {
                    id: sizes
                    width: parent.width
                    colors: page.colors
                }

                Text {
                    width: parent.width
                    topPadding: 18
                    text: "Washed linen with two chest pockets and corozo buttons. Cut a little "
                          + "wide, so that a jumper fits below it; between two sizes, take the "
                          + "smaller one."
                    color: page.colors.quiet
                    font.pixelSize: 14
                    lineHeight: 1.35
                    wrapMode: Text.WordWrap
                    horizontalAlignment: Text.AlignLeft
                }
            }
        }
    }

    Rectangle {
        id: footer
        anchors.bottom: parent.bottom
        width: parent.width
        height: 74
        color: page.colors.page

        Rectangle {
            width: parent.width
            height: 1
            color: page.colors.hairline
        }

        PrimaryButton {
            x: Math.max(20, (parent.width - 560) / 2)
            width: parent.width - 2 * x
            anchors.verticalCenter: parent.verticalCenter
            colors: page.colors
            text: "Add to bag"
            onClicked: {
                page.bagCount += 1
                notice.show("In your bag: linen overshirt, size " + sizes.size)
            }
        }
    }

    Notice {
        id: notice
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: footer.top
        anchors.bottomMargin: 14
        colors: page.colors
    }
}
