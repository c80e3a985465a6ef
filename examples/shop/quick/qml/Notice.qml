import QtQuick
import Quorix.Shop

// A confirmation that disappears after a while.
Rectangle {
    id: notice

    property alias text: label.text

    function show(words) {
        text = words
        opacity = 1
        away.restart()
    }

    opacity: 0
    visible: opacity > 0
    width: line.implicitWidth + 32
    height: 44
    radius: 22
    color: Shop.colors.notice
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Behavior on opacity {
        NumberAnimation { duration: 180 }
    }

    Timer {
        id: away
        interval: 2400
        onTriggered: notice.opacity = 0
    }

    Row {
        id: line
        anchors.centerIn: parent
        spacing: 8

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            radius: 10
            color: "#2e8b6a"

            Image {
                anchors.centerIn: parent
                width: 12
                height: 12
                sourceSize: Qt.size(36, 36)
                source: "qrc:/shop/art/check.svg"
            }
        }

        Text {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            color: Shop.colors.noticeInk
            font.pixelSize: 14
        }
    }
}
