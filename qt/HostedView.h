#pragma once

#include "platform/hosting/ViewSession.h"
#include "qt/Desktop.h"
#include "qt/SheetCloseReason.h"
#include "qt/Surface.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::qt {

/// A view in a window: `Shown` is its item or widget, `ToolkitSurface` its toolkit's `Surface`.
/// Main thread.
template <class Shown, class ToolkitSurface>
class HostedView : public hosting::ViewSession, public ToolkitSurface {
 public:
  /// It was shown or hidden, or its window was.
  void onScreenChanged() {
    host().setOnScreen(isOnScreen());
    needsFrame();
  }

 protected:
  /// `chosen`: the host's settings for the view.
  HostedView(Shown& shown, const hosting::HostSettings& chosen)
      : ViewSession(QtTextEngine::shared()),
        ToolkitSurface(shown, *this),
        shown_(shown),
        chosen_(chosen) {}

  virtual bool isOnScreen() const = 0;
  void needsFrame() override = 0;
  layout::Size size() const override { return {double(shown_.width()), double(shown_.height())}; }

  Shown& shown_;

 private:
  bool allowsMotion() const override {
    return chosen_.motion ? *chosen_.motion : !Desktop::prefersReducedMotion();
  }
  bool isRead() const override { return Surface::areRead(); }
  void sceneChanged() override { this->tellScene(); }
  void focusMoved(bool later) override { this->tellFocus(later); }
  void desktopChanged() override { settingsChanged(); }
  void windowStateChanged() override { onScreenChanged(); }

  void activated() override { emit shown_.activated(); }
  void sheetOpened() override { emit shown_.sheetOpened(); }
  void sheetClosed(hosting::SheetCloseReason reason) override {
    emit shown_.sheetClosed(static_cast<SheetCloseReason>(reason));
  }

  const hosting::HostSettings& chosen_;
};

}  // namespace quorix::qt
