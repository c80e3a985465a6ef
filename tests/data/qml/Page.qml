import QtQuick
import QtQuick.Layouts
import QuorixWidgets

// The module's types as a shop's page would have them.
ColumnLayout {
    property alias token: row.token

    ScoreWidget {
        id: row
        Layout.fillWidth: true
        visible: implicitHeight > 0
        clientId: "my-shop"
        appearance: ScoreWidget.Dark
        onTokenChanged: info.showBorder = false
        onSheetClosed: reason => info.showBorder = reason === SheetCloseReason.Button
    }
    InfoWidget {
        id: info
        Layout.fillWidth: true
        locale: "en"
        backgroundColor: "#faf7f0"
        layoutDirection: Qt.RightToLeft
        KeyNavigation.tab: row
    }
}
