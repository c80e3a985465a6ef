// The same row with anchors instead of the layout: the smallest amount of work for QML.

import QtQuick

Item {
    id: row

    required property string title
    required property string fee
    property string baseFee  // struck through; empty without a discount
    property string label
    property string hint
    property color ink
    property color faded

    signal activated

    implicitWidth: titleText.implicitWidth + fees.implicitWidth + 32
    implicitHeight: titleText.implicitHeight
    activeFocusOnTab: true
    Keys.onReturnPressed: activated()
    Keys.onSpacePressed: activated()

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.description: hint
    Accessible.onPressAction: activated()

    TapHandler {
        onTapped: row.activated()
    }

    Text {
        id: titleText
        text: row.title
        color: row.ink
        font { family: "Saans"; pixelSize: 14; underline: true; capitalization: Font.AllUppercase }
    }
    Row {
        id: fees
        anchors.right: parent.right
        spacing: 12
        Text {
            text: row.fee
            color: row.ink
            font { family: "Saans"; pixelSize: 14; weight: Font.Medium }
        }
        Text {
            visible: row.baseFee !== ""
            text: row.baseFee
            color: row.faded
            font { family: "Saans"; pixelSize: 14; strikeout: true }
        }
    }
}
