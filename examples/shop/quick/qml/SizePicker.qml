import QtQuick
import QtQuick.Controls.Basic

// The product's sizes, one of them chosen.
Column {
    id: picker

    required property Theme colors
    property string size: "M"

    spacing: 10

    Text {
        width: parent.width
        text: "Size"
        color: picker.colors.ink
        font.pixelSize: 14
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignLeft
    }

    Row {
        anchors.left: parent.left
        spacing: 8

        Repeater {
            model: ["XS", "S", "M", "L", "XL"]

            AbstractButton {
                id: chip

                required property string modelData
                readonly property bool chosen: picker.size === modelData

                width: 52
                height: 44
                checkable: true
                checked: chosen
                Accessible.name: "Size " + modelData
                onClicked: picker.size = modelData

                contentItem: Text {
                    text: chip.modelData
                    color: chip.chosen ? picker.colors.accentInk : picker.colors.ink
                    font.pixelSize: 14
                    font.weight: chip.chosen ? Font.DemiBold : Font.Normal
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }

                background: Rectangle {
                    radius: 8
                    color: chip.chosen ? picker.colors.accent
                                       : chip.hovered ? picker.colors.stage : "transparent"
                    border.width: chip.visualFocus ? 2 : chip.chosen ? 0 : 1
                    border.color: chip.visualFocus ? picker.colors.ink : picker.colors.hairline
                }
            }
        }
    }
}
