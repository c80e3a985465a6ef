import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Window
import Quorix.Shop

// A button with a drawing of the shop, in the variant for the page's appearance. Its text is for
// screen readers.
AbstractButton {
    id: button

    required property string name
    property bool mirror: false

    width: 44
    height: 44
    padding: 10
    Accessible.name: text
    Accessible.onPressAction: clicked()

    contentItem: Image {
        readonly property real pixels: 24 * Screen.devicePixelRatio

        mirror: button.mirror
        sourceSize: Qt.size(pixels, pixels)
        source: "qrc:/shop/art/" + button.name + (Shop.dark ? "-on-dark.svg" : "-on-light.svg")
    }

    background: Rectangle {
        radius: width / 2
        color: button.down || button.hovered ? Shop.colors.stage : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Shop.colors.ink
    }
}
