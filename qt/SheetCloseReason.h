#pragma once

#include <QObject>

#include "platform/foundation/Export.h"
#include "platform/hosting/Input.h"

namespace quorix::qt {

Q_NAMESPACE_EXPORT(QUORIX_EXPORT)

/// What closed the sheet of a `ViewItem` or a `ViewWidget`.
enum class SheetCloseReason {
  Button = int(hosting::SheetCloseReason::button),    ///< the sheet's own button
  Swipe = int(hosting::SheetCloseReason::swipe),      ///< a swipe down
  Outside = int(hosting::SheetCloseReason::outside),  ///< a tap beside the sheet
  Key = int(hosting::SheetCloseReason::key),          ///< Escape, the Back key
  Host = int(hosting::SheetCloseReason::host),  ///< not the user: `setView`, a deleted view, a page
                                                ///< that opened in the browser instead
};
Q_ENUM_NS(SheetCloseReason)

}  // namespace quorix::qt
