import QtQuick
import QtQuick.Controls.Basic

AbstractButton {
    id: button

    required property Theme colors

    implicitHeight: 50

    contentItem: Text {
        text: button.text
        color: button.colors.accentInk
        font.pixelSize: 16
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 12
        color: button.down ? Qt.darker(button.colors.accent, 1.2) : button.colors.accent
        border.width: button.visualFocus ? 2 : 0
        border.color: button.colors.ink
    }
}
