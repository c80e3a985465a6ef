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

/// Passes an event to `responder`. Pointer: accepts the event if the responder takes it; returns
/// true. Key, wheel: returns whether the responder uses it. Other events: returns false. The action
/// may delete the surface: do not use it afterwards.
QUORIX_EXPORT bool passInput(QEvent& event, hosting::Responder& responder);

/// Shows the hand where the view acts, and elsewhere the cursor of what the view stands in.
template <class View>
void showHand(View& view, bool acts) {
  if (acts == (view.cursor().shape() == Qt::PointingHandCursor)) return;
  acts ? view.setCursor(Qt::PointingHandCursor) : view.unsetCursor();
}

}  // namespace quorix::qt
