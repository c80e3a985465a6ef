#pragma once

#include <QtCore/qnamespace.h>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"
#include "platform/hosting/ViewSession.h"

class QEvent;
class QKeyEvent;

namespace quorix::qt {

QUORIX_EXPORT hosting::KeyEvent toKeyEvent(const QKeyEvent& event);
QUORIX_EXPORT hosting::ViewFocus::Cause causeOf(Qt::FocusReason reason);

/// Passes an event of the pointer to `responder`, and accepts it if that takes it. Passes a key or
/// the wheel. False for other events, and if `responder` does not use the key or the wheel. The
/// action may delete the surface: do not touch it afterwards.
QUORIX_EXPORT bool passInput(QEvent& event, hosting::Responder& responder);

/// Shows the hand where the view acts, and elsewhere the cursor of what the view stands in.
template <class View>
void showHand(View& view, bool acts) {
  if (acts == (view.cursor().shape() == Qt::PointingHandCursor)) return;
  acts ? view.setCursor(Qt::PointingHandCursor) : view.unsetCursor();
}

}  // namespace quorix::qt
