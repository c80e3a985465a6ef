import QtQuick
import Quorix.Shop

// A text of the shop, aligned to the leading edge and broken into lines.
Text {
    property bool quiet: false

    color: quiet ? Shop.colors.quiet : Shop.colors.ink
    font.pixelSize: 14
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.WordWrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
