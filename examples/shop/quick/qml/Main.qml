import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Quorix.Shop

ApplicationWindow {
    width: 430
    height: 860
    minimumWidth: 340
    minimumHeight: 480
    title: "Fjord & Thread"
    color: Shop.colors.page

    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        DemoBar {
            Layout.fillWidth: true
        }

        ShopScreen {
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }

    DemoNote {
        z: 2000000  // above the library's sheets
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 88  // above the page's buttons
        width: Math.min(parent.width - 32, 480)
    }
}
