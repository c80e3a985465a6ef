import QtQuick
import Quorix.Shop

// The number of pieces in the bag. Hidden while the bag is empty.
Rectangle {
    required property int count

    visible: count > 0
    width: Math.max(height, label.implicitWidth + 8)
    height: 17
    radius: height / 2
    color: Shop.colors.accent

    onCountChanged: if (visible && Shop.moving) pulse.restart()

    Text {
        id: label
        anchors.centerIn: parent
        text: parent.count
        color: Shop.colors.accentInk
        font.pixelSize: 11
        font.weight: Font.DemiBold
    }

    NumberAnimation on scale {
        id: pulse
        running: false
        from: 1.35
        to: 1
        duration: 220
        easing.type: Easing.OutBack
    }
}
