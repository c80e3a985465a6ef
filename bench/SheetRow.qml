// The row with its sheet: a popup that is made at the first tap, as in a list of rows, and kept. It
// opens without motion.

import QtQuick
import QtQuick.Controls.Basic

LeanScoreRow {
    id: row

    required property string feeName
    required property string rateName
    required property string rate
    required property string disclaimer
    required property string closeName
    property Popup sheet

    onActivated: {
        if (!sheet)
            sheet = sheetComponent.createObject(row);
        sheet.open();
    }

    component SheetText: Text {
        color: row.ink
        font { family: "Saans"; pixelSize: 14 }
    }
    component Line: Item {
        default property alias figures: shown.data
        property alias name: named.text
        property string label: name
        Accessible.name: label
        width: parent.width
        height: shown.height
        SheetText {
            id: named
        }
        Row {
            id: shown
            anchors.right: parent.right
            spacing: 12
        }
    }

    Component {
        id: sheetComponent
        Popup {
            id: popup
            parent: row.parent
            modal: true
            focus: true
            padding: 16
            topPadding: 24
            width: parent.width
            y: parent.height - implicitHeight

            background: Rectangle {
                radius: 12
            }
            contentItem: Column {
                spacing: 4
                Item {
                    width: parent.width
                    height: title.height + 20
                    SheetText {
                        id: title
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: row.title
                        font { underline: true; capitalization: Font.AllUppercase }
                    }
                    Image {
                        anchors.right: parent.right
                        source: "qrc:/bench/close.svg"
                        Accessible.role: Accessible.Button
                        Accessible.name: row.closeName
                        TapHandler { onTapped: popup.close() }
                    }
                }
                Line {
                    name: row.feeName
                    label: row.label
                    SheetText { text: row.fee }
                    SheetText { text: row.baseFee; color: row.faded; font.strikeout: true }
                }
                Line {
                    name: row.rateName
                    SheetText { text: row.rate }
                }
                Item {
                    width: parent.width
                    height: 49
                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width
                        height: 1
                        color: "#d1d1d6"
                    }
                }
                SheetText {
                    width: parent.width
                    text: row.disclaimer
                    color: row.faded
                    wrapMode: Text.WordWrap
                }
                Item {
                    width: parent.width
                    height: 66
                    Image {
                        anchors.centerIn: parent
                        source: "qrc:/bench/logo.svg"
                        sourceSize { width: 46; height: 10 }
                    }
                }
            }
        }
    }
}
