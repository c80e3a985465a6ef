import QtQuick

// The shop's name between the way back and the bag.
Item {
    id: header

    required property int bagCount
    required property Theme colors

    implicitHeight: 52

    Icon {
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        name: "back"
        colors: header.colors
        mirror: header.LayoutMirroring.enabled
    }

    Text {
        anchors.centerIn: parent
        text: "FJORD & THREAD"
        color: header.colors.ink
        font.pixelSize: 14
        font.weight: Font.DemiBold
        font.letterSpacing: 3
    }

    Icon {
        id: bag
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        name: "bag"
        colors: header.colors
        Accessible.role: Accessible.StaticText
        Accessible.name: header.bagCount === 1 ? "1 thing in your bag"
                                               : header.bagCount + " things in your bag"
    }

    Badge {
        anchors.horizontalCenter: bag.right
        anchors.horizontalCenterOffset: header.LayoutMirroring.enabled ? 2 : -2
        anchors.verticalCenter: bag.top
        anchors.verticalCenterOffset: 4
        count: header.bagCount
        colors: header.colors
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: header.colors.hairline
    }
}
