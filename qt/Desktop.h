#pragma once

#include <QtCore/qnamespace.h>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Environment.h"

class QPalette;

/// The desktop's settings for every surface of the process: light or dark, reading direction, text
/// size, motion. Main thread.
namespace quorix::qt::Desktop {

/// Starts to notify the surfaces of changes, until the application object is destroyed. No effect
/// without a `QGuiApplication`, or if already started.
void follow();

/// The desktop's settings, at `scale` device pixels for each point.
QUORIX_EXPORT swiftui::Environment environment(double scale);
/// Dark if the palette's window is darker than its text: not every supported version of Qt tells
/// the color scheme.
QUORIX_EXPORT graphics::Appearance appearanceOf(const QPalette& palette);
QUORIX_EXPORT layout::LayoutDirection directionOf(Qt::LayoutDirection direction);
/// The user wants less motion, by the latest state of the desktop's settings.
QUORIX_EXPORT bool prefersReducedMotion();

}  // namespace quorix::qt::Desktop
