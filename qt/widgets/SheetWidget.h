#pragma once

#include "platform/hosting/WindowSession.h"

class QWidget;

namespace quorix::qt {

/// The session of a window of widgets, made with the first call. Its sheets are as large as the
/// window and above everything in it. Main thread.
hosting::WindowSession& sessionOf(QWidget& window);

}  // namespace quorix::qt
