// The info widget with anchors: the smallest amount of work for QML.

import QtQuick

Rectangle {
    id: widget

    required property string title  // marked up
    required property string link
    property string label
    property color ink

    signal activated

    implicitHeight: linkText.y + linkText.height + 16
    activeFocusOnTab: true
    Keys.onReturnPressed: activated()
    Keys.onSpacePressed: activated()

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.onPressAction: activated()

    TapHandler {
        onTapped: widget.activated()
    }

    Text {
        id: titleText
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 16 }
        text: widget.title
        textFormat: Text.StyledText
        wrapMode: Text.WordWrap
        color: widget.ink
        font { family: "Saans"; pixelSize: 13 }
    }
    Text {
        id: linkText
        anchors { left: titleText.left; top: titleText.bottom; topMargin: 16 }
        text: widget.link
        color: widget.ink
        font { family: "Saans"; pixelSize: 13; underline: true }
    }
    Image {
        anchors { right: titleText.right; verticalCenter: linkText.verticalCenter }
        source: "qrc:/bench/poweredBy.svg"
    }
}
