import QtQuick
import QtQuick.Controls.Basic

// A page of the shop. It scrolls if it is taller than the window.
Flickable {
    id: page

    default property alias content: column.data

    contentHeight: column.height
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    ScrollBar.vertical: ScrollBar {
        policy: ScrollBar.AsNeeded
        Accessible.ignored: true
    }

    Column {
        id: column
        width: page.width
        bottomPadding: 24
    }
}
