import QtQuick
import QtQuick.Controls.Basic
import Quorix.Shop

// The pieces of one size in the bag.
Item {
    id: line

    required property string size
    required property int count
    required property string price

    implicitHeight: 96

    Rectangle {
        id: picture
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 72
        height: 72
        radius: 8
        color: Shop.colors.stage

        Image {
            anchors.fill: parent
            anchors.margins: 6
            fillMode: Image.PreserveAspectFit
            sourceSize.height: 2 * height
            source: "qrc:/shop/art/overshirt.svg"
        }
    }

    Column {
        anchors.left: picture.right
        anchors.leftMargin: 14
        anchors.right: amount.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Words {
            width: parent.width
            text: Shop.words.product
            font.pixelSize: 15
        }

        Words {
            width: parent.width
            text: Shop.words.sizeOf.arg(line.size) + (line.count > 1 ? "  ×\u2009" + line.count : "")
            quiet: true
        }

        AbstractButton {
            id: remove
            anchors.left: parent.left
            height: 26
            text: Shop.words.remove
            Accessible.description: Shop.words.sizeOf.arg(line.size)
            Accessible.onPressAction: clicked()
            onClicked: Shop.takeOut(line.size)

            contentItem: Words {
                text: remove.text
                color: Shop.colors.accent
                font.underline: remove.hovered || remove.visualFocus
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    Words {
        id: amount
        anchors.right: parent.right
        anchors.top: picture.top
        anchors.topMargin: 2
        text: line.price
        font.pixelSize: 15
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Shop.colors.hairline
    }
}
