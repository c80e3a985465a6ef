#pragma once

#include "platform/hosting/SheetSession.h"

class QQuickWindow;

namespace quorix::qt {

/// Makes a sheet over a Qt Quick window. It is as large as the window, and above the item that
/// shows `opener` (which may be null) and everything which holds that item. Main thread.
hosting::SheetSession& newSheetItem(QQuickWindow& window, hosting::WindowSession& session,
                                    const hosting::Responder* opener);

}  // namespace quorix::qt
