import QtQuick
import QtQuick.Controls.Basic
import Quorix.Shop

AbstractButton {
    id: button

    implicitHeight: 50
    Accessible.onPressAction: clicked()

    contentItem: Text {
        text: button.text
        color: Shop.colors.accentInk
        font.pixelSize: 16
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 12
        color: button.down ? Qt.darker(Shop.colors.accent, 1.2) : Shop.colors.accent
        border.width: button.visualFocus ? 2 : 0
        border.color: Shop.colors.ink
    }
}
