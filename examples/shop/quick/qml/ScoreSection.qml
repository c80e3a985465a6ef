import QtQuick
import Quorix.Shop

// The score row between hairlines, and the room around them. With nothing to show it takes no room
// at all.
Item {
    id: section

    required property Theme colors
    required property var shopper
    required property var language
    required property int appearance
    required property var face

    readonly property bool shown: row.implicitHeight > 0
    readonly property int above: 18    // the upper line
    readonly property int margin: 16   // between each line and the row

    implicitHeight: shown ? above + row.implicitHeight + 2 * margin : 0

    Rectangle {
        visible: section.shown
        y: section.above
        width: parent.width
        height: 1
        color: section.colors.hairline
    }

    ScoreRow {
        id: row
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            bottomMargin: section.margin
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
