#pragma once

#include <QGuiApplication>
#include <memory>

namespace quorix::tool {

/// Makes the application object of a command that lays out, paints or opens windows, without the
/// network. Qt's own messages are hidden; a fatal one (a missing platform plug-in) ends the tool
/// with one line. Without windows it needs no display, unless the environment selects one with
/// QT_QPA_PLATFORM.
std::unique_ptr<QGuiApplication> startApplication(bool withWindows = false);

}  // namespace quorix::tool
