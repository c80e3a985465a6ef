// The score row in the usual way with QML, for a list of rows.

import QtQuick
import QtQuick.Layouts

RowLayout {
    id: row

    required property string title
    required property string fee
    property string baseFee  // struck through; empty without a discount
    property string label
    property string hint
    property color ink
    property color faded

    signal activated

    spacing: 12
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
        text: row.title
        color: row.ink
        font { family: "Saans"; pixelSize: 14; underline: true; capitalization: Font.AllUppercase }
    }
    Item {
        Layout.fillWidth: true
    }
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
