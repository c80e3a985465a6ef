import QtQuick
import QtQuick.Controls.Basic
import Quorix.Shop

// The product's sizes. One of them is chosen.
Column {
    id: picker

    spacing: 10

    Words {
        width: parent.width
        text: Shop.words.size
        font.weight: Font.DemiBold
    }

    Row {
        anchors.left: parent.left
        spacing: 8

        Repeater {
            model: Shop.sizes

            AbstractButton {
                id: chip

                required property string modelData
                readonly property bool chosen: Shop.size === modelData

                width: 52
                height: 44
                checkable: true
                checked: chosen
                Accessible.name: Shop.words.sizeOf.arg(modelData)
                Accessible.onPressAction: clicked()
                onClicked: Shop.size = modelData

                contentItem: Text {
                    text: chip.modelData
                    color: chip.chosen ? Shop.colors.accentInk : Shop.colors.ink
                    font.pixelSize: 14
                    font.weight: chip.chosen ? Font.DemiBold : Font.Normal
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }

                background: Rectangle {
                    radius: 8
                    color: chip.chosen ? Shop.colors.accent
                                       : chip.hovered ? Shop.colors.stage : "transparent"
                    border.width: chip.visualFocus ? 2 : chip.chosen ? 0 : 1
                    border.color: chip.visualFocus ? Shop.colors.ink : Shop.colors.hairline
                }
            }
        }
    }
}
