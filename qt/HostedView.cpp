#include "qt/HostedView.h"

#include <QKeyEvent>

#include "qt/Desktop.h"
#include "qt/Input.h"
#include "qt/Surface.h"
#include "qt/ViewAccessible.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

HostedView::HostedView(QObject& self, const hosting::HostSettings& chosen)
    : ViewSession(QtTextEngine::shared()), self_(self), chosen_(chosen) {}

bool HostedView::handle(QEvent& event) {
  if (event.type() == QEvent::KeyPress) return handle(toKeyEvent(static_cast<QKeyEvent&>(event)));
  return passPointer(event, *this);
}

bool HostedView::allowsMotion() const {
  return chosen_.motion ? *chosen_.motion : !Desktop::prefersReducedMotion();
}

void HostedView::focusMoved(bool later) {
  ViewAccessible::focusChanged(self_, later ? Qt::QueuedConnection : Qt::DirectConnection);
}

void HostedView::sceneChanged() { ViewAccessible::sceneChanged(self_); }

bool HostedView::isRead() const { return Surface::areRead(); }

}  // namespace quorix::qt
