#pragma once

#include <QtCore/qnamespace.h>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"
#include "platform/hosting/ViewSession.h"

class QEvent;
class QKeyEvent;
class QWheelEvent;

namespace quorix::qt {

QUORIX_EXPORT hosting::KeyEvent toKeyEvent(const QKeyEvent& event);
hosting::ScrollEvent toScrollEvent(const QWheelEvent& event);
QUORIX_EXPORT hosting::ViewFocus::Cause causeOf(Qt::FocusReason reason);

/// Passes an event of the pointer to `responder`, and accepts it if that takes it. False for other
/// events. The action may delete the surface.
QUORIX_EXPORT bool passPointer(QEvent& event, hosting::Responder& responder);

/// Shows the hand where the view acts, and elsewhere the cursor of what the view stands in.
template <class View>
void showHand(View& view, bool acts) {
  if (acts == (view.cursor().shape() == Qt::PointingHandCursor)) return;
  acts ? view.setCursor(Qt::PointingHandCursor) : view.unsetCursor();
}

}  // namespace quorix::qt
