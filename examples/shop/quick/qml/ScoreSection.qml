import QtQuick
import Quorix.Shop
import QuorixWidgets

// The score row between hairlines, with margins. Takes no space if there is nothing to show.
Item {
    id: section

    readonly property bool shown: row.implicitHeight > 0
    readonly property int above: 18    // the upper line
    readonly property int margin: 16   // between each line and the row

    implicitHeight: shown ? above + row.implicitHeight + 2 * margin : 0

    Rectangle {
        visible: section.shown
        y: section.above
        width: parent.width
        height: 1
        color: Shop.colors.hairline
    }

    ScoreWidget {
        id: row
        anchors {
            left: parent.left
            right: parent.right
            bottom: parent.bottom
            bottomMargin: section.margin
        }
        clientId: Shop.clientId
        token: Shop.token
        locale: Shop.locale
        regularFont: Shop.regularFont
        semiBoldFont: Shop.semiBoldFont
        textSize: Shop.textSize
        appearance: Shop.dark ? ScoreWidget.Dark : ScoreWidget.Light
        layoutDirection: Shop.rightToLeft ? Qt.RightToLeft : Qt.LeftToRight
        animated: Shop.moving
    }

    Rectangle {
        visible: section.shown
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Shop.colors.hairline
    }
}
