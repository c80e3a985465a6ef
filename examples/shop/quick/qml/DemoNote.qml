import QtQuick
import Quorix.Shop

// A note of the demo itself: the address that a page or a widget opened outside the app. A real
// address would open in the browser.
Rectangle {
    visible: Shop.note !== ""
    color: "#ffc24b"
    radius: 10
    height: note.implicitHeight + 24

    Text {
        id: note
        anchors {
            left: parent.left
            right: parent.right
            margins: 14
            verticalCenter: parent.verticalCenter
        }
        text: Shop.note
        color: "#20242f"
        font.pixelSize: 13
        lineHeight: 1.2
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
    }
}
