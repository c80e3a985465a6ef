#pragma once

#include <QMargins>
#include <optional>

#include "platform/foundation/Export.h"

class QWindow;

namespace quorix::qt {

/// Says what the device covers at the edges of `window` (a notch, rounded corners, the bar to swipe
/// home), in points, which are the window's own units. The sheets over the window keep their
/// content clear of it, open ones at once. Say it when the window is made and when it is turned; it
/// need not be shown yet. Without it, or with `std::nullopt`, Qt's `QWindow::safeAreaMargins` holds
/// where the library was built with Qt 6.9 or later, and nothing is covered with an earlier one.
/// Main thread.
///
///     #include <QQuickWindow>
///     quorix::qt::setSafeArea(*productPage->window(), QMargins(0, 47, 0, 34));
///
/// A widget's window is `page->window()->windowHandle()`, once that exists.
QUORIX_EXPORT void setSafeArea(QWindow& window, std::optional<QMargins> covered);

}  // namespace quorix::qt
