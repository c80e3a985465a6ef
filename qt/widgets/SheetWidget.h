#pragma once

#include "platform/hosting/SheetSession.h"

class QWidget;

namespace quorix::qt {

/// Makes a sheet over a window of widgets: as large as the window and above everything in it. Main
/// thread.
hosting::SheetSession& newSheetWidget(QWidget& window, hosting::WindowSession& session);

}  // namespace quorix::qt
