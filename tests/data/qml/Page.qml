import QtQuick
import QtQuick.Layouts
import QuorixWidgets

// Uses the module's types like a shop's page.
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
