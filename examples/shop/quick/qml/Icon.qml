import QtQuick
import QtQuick.Window

// A drawing from the shop's art in the variant for the page's appearance.
Image {
    required property string name
    required property Theme colors

    width: 24
    height: 24
    sourceSize: Qt.size(width * Screen.devicePixelRatio, height * Screen.devicePixelRatio)
    source: "qrc:/shop/art/" + name + (colors.dark ? "-on-dark.svg" : "-on-light.svg")
}
