import QtQuick

// The shop's own colours.
QtObject {
    property bool dark: false

    readonly property color page: dark ? "#161618" : "#ffffff"
    readonly property color stage: dark ? "#25231f" : "#f1ede6"
    readonly property color ink: dark ? "#f5f5f7" : "#1a1a1c"
    readonly property color quiet: dark ? "#aeaeb2" : "#636366"
    readonly property color hairline: dark ? "#36363a" : "#e4e4e8"
    readonly property color accent: dark ? "#a9d5c0" : "#1f4a3d"
    readonly property color accentInk: dark ? "#10241d" : "#ffffff"
    readonly property color notice: dark ? "#f5f5f7" : "#26262a"
    readonly property color noticeInk: dark ? "#1a1a1c" : "#ffffff"
}
