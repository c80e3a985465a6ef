#pragma once

#include <QKeyEvent>

#include "platform/hosting/ViewSession.h"
#include "qt/Desktop.h"
#include "qt/Input.h"
#include "qt/SheetCloseReason.h"
#include "qt/Surface.h"
#include "qt/ViewAccessible.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

/// A view in a window: `Shown` is its item or widget, `Toolkit` the surface for any of these. Main
/// thread.
template <class Shown, class Toolkit>
class HostedView : public hosting::ViewSession, public Toolkit {
 public:
  using ViewSession::handle;
  /// Handles an event of the pointer, or a key that acts. False for other events. The action may
  /// delete the surface: do not touch it afterwards.
  bool handle(QEvent& event) {
    if (event.type() == QEvent::KeyPress) return handle(toKeyEvent(static_cast<QKeyEvent&>(event)));
    return passPointer(event, *this);
  }

  /// It was shown or hidden, or its window was.
  void onScreenChanged() {
    host().setOnScreen(isOnScreen());
    needsFrame();
  }

 protected:
  /// `chosen`: the host's settings for the view.
  HostedView(Shown& shown, const hosting::HostSettings& chosen)
      : ViewSession(QtTextEngine::shared()),
        Toolkit(shown, *this),
        shown_(shown),
        chosen_(chosen) {}

  virtual bool isOnScreen() const = 0;
  void needsFrame() override = 0;
  layout::Size size() const override { return {double(shown_.width()), double(shown_.height())}; }

 private:
  bool allowsMotion() const override {
    return chosen_.motion ? *chosen_.motion : !Desktop::prefersReducedMotion();
  }
  bool isRead() const override { return Surface::areRead(); }
  void sceneChanged() override { ViewAccessible::sceneChanged(shown_); }
  void focusMoved(bool later) override {
    ViewAccessible::focusChanged(shown_, later ? Qt::QueuedConnection : Qt::DirectConnection);
  }
  void desktopChanged() override { settingsChanged(); }
  void windowStateChanged() override { onScreenChanged(); }

  void activated() override { emit shown_.activated(); }
  void sheetOpened() override { emit shown_.sheetOpened(); }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    emit shown_.sheetClosed(static_cast<SheetCloseReason>(reason));
  }

  Shown& shown_;
  const hosting::HostSettings& chosen_;
};

}  // namespace quorix::qt
