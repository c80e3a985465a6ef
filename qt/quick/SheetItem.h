#pragma once

#include "platform/hosting/WindowSession.h"

class QQuickWindow;

namespace quorix::qt {

/// The session of a Qt Quick window, made with the first call. Its sheets are as large as the
/// window, and above the item that opens them and everything which holds that item. Main thread.
hosting::WindowSession& sessionOf(QQuickWindow& window);

}  // namespace quorix::qt
