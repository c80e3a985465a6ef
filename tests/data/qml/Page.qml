import QtQuick
import QtQuick.Layouts
import QuorixWidgets

// All that the module offers, as a page of a shop would use it.
ColumnLayout {
    id: page

    property string shopper: ""
    readonly property bool hasRow: row.implicitHeight > 0

    ScoreWidget {
        id: row
        Layout.fillWidth: true
        visible: implicitHeight > 0
        clientId: "my-shop"
        locale: "es"
        token: page.shopper
        regularFont: "Open Sans"
        semiBoldFont: "Open Sans SemiBold"
        appearance: ScoreWidget.Dark
        textSize: ScoreWidget.ExtraLarge
        animated: false
        onTokenChanged: page.opacity = 1
    }

    InfoWidget {
        Layout.fillWidth: true
        locale: "es"
        backgroundColor: "#faf7f0"
        showBorder: row.visible
        layoutDirection: Qt.RightToLeft
        appearance: InfoWidget.System
        KeyNavigation.tab: row
    }
}
