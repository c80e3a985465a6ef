#include "qt/HostedView.h"

#include <QKeyEvent>

#include "qt/Input.h"
#include "qt/accessibility/ViewAccessible.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

HostedView::HostedView(QObject& self) : ViewSession(QtTextEngine::shared()), self_(self) {}

bool HostedView::handle(QEvent& event) {
  if (event.type() == QEvent::KeyPress) return handle(toKeyEvent(static_cast<QKeyEvent&>(event)));
  return passPointer(event, *this);
}

void HostedView::focusMoved(bool later) {
  ViewAccessible::focusChanged(self_, later ? Qt::QueuedConnection : Qt::DirectConnection);
}

}  // namespace quorix::qt
