import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Quorix.Shop

// One control of the demo bar: a caption above the value, and a drop-down list.
ComboBox {
    id: choice

    required property string caption
    required property int chosen
    property real share: 1  // of the bar's width

    Layout.fillWidth: true
    Layout.preferredWidth: share
    implicitHeight: 42
    leftPadding: 10
    rightPadding: 26
    Accessible.name: caption
    Accessible.description: displayText
    Accessible.onPressAction: popup.open()

    // A choice by the user breaks the binding of `currentIndex`.
    onChosenChanged: currentIndex = chosen
    Component.onCompleted: currentIndex = chosen

    contentItem: Column {
        topPadding: 5
        spacing: 1

        Text {
            width: parent.width
            text: choice.caption
            color: "#a3abbd"
            font.pixelSize: 10
            horizontalAlignment: Text.AlignLeft
        }

        Text {
            width: parent.width
            text: choice.displayText
            color: "#ffffff"
            font.pixelSize: 13
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
        }
    }

    indicator: Image {
        x: choice.width - width - 9
        y: (choice.height - height) / 2
        width: 10
        height: 10
        sourceSize: Qt.size(30, 30)
        source: "qrc:/shop/art/expand.svg"
    }

    background: Rectangle {
        radius: 6
        color: choice.hovered || choice.down ? "#3a4152" : "#2f3543"
        border.width: choice.visualFocus ? 2 : 0
        border.color: "#ffc24b"
    }

    delegate: ItemDelegate {
        id: entry

        required property int index

        width: ListView.view.width
        height: 36
        highlighted: choice.highlightedIndex === index

        contentItem: Text {
            text: choice.textAt(entry.index)
            color: "#ffffff"
            font.pixelSize: 13
            font.weight: choice.currentIndex === entry.index ? Font.DemiBold : Font.Normal
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }

        background: Rectangle {
            radius: 4
            color: entry.highlighted ? "#4a5369" : "transparent"
        }
    }

    popup: Popup {
        y: choice.height + 4
        width: Math.max(choice.width, 196)
        padding: 4
        margins: 6

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: choice.popup.visible ? choice.delegateModel : null
            currentIndex: choice.highlightedIndex
        }

        background: Rectangle {
            radius: 8
            color: "#2f3543"
            border.color: "#4a5369"
        }
    }
}
