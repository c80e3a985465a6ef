#pragma once

#include <QMargins>
#include <optional>

#include "platform/foundation/Export.h"

class QWindow;

namespace quorix::qt {

/// Sets what the device covers at the edges of `window` (a notch, rounded corners, the home bar),
/// in points, which are the window's own units. Sheets over the window keep their content clear of
/// it, open ones at once. Call it when the window is made, which need not be shown yet, and when it
/// is rotated. Without a call, or with `std::nullopt`, `QWindow::safeAreaMargins` counts if the
/// library was built with Qt 6.9 or later; with an earlier one nothing is covered. Main thread.
///
///     #include <QQuickWindow>
///     quorix::qt::setSafeArea(*productPage->window(), QMargins(0, 47, 0, 34));
///
/// The window of a widget is `page->window()->windowHandle()`, once that exists.
QUORIX_EXPORT void setSafeArea(QWindow& window, std::optional<QMargins> covered);

}  // namespace quorix::qt
