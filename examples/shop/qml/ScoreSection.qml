import QtQuick
import Quorix.Shop

// The score row between hairlines. With nothing to show it takes no room, lines and margins included.
Item {
    id: section

    required property Theme colors
    required property var shopper
    required property var language
    required property int appearance
    required property var face

    readonly property bool shown: row.implicitHeight > 0
    readonly property int margin: 16

    implicitHeight: shown ? row.implicitHeight + 2 * margin : 0

    Rectangle {
        visible: section.shown
        width: parent.width
        height: 1
        color: section.colors.hairline
    }

    ScoreRow {
        id: row
        anchors {
            left: parent.left
            right: parent.right
            verticalCenter: parent.verticalCenter
        }
        clientId: Shop.clientId
        locale: section.language.code
        token: section.shopper.token
        regularFont: section.face.regular
        semiBoldFont: section.face.semiBold
        textSize: section.face.textSize
        appearance: section.appearance
        rightToLeft: section.language.rightToLeft
    }

    Rectangle {
        visible: section.shown
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: section.colors.hairline
    }
}
