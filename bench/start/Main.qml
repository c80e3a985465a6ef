import QtQuick
import QtQuick.Window

Window {
    width: 375
    height: 100

    ScoreRow {
        x: 16
        y: 16
        width: 343
        title: qsTr("Your return fee")
        fee: "€2.00"
        baseFee: "€4.00"
        label: qsTr("%1 Discounted %2, Original %3").arg(title).arg(fee).arg(baseFee)
        hint: qsTr("Tap to learn more")
        ink: "#1a1a1c"
        faded: "#6b6b70"
    }
}
