#pragma once

#include <memory>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"
#include "platform/swiftui/View.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/UIWindow.h"

namespace quorix::hosting {

/// A toolkit's window with the sheets over it. Imperative views see a scene with one window, whose
/// root controller represents the host's own screen. Controllers that are presented over it appear
/// as sheets. Main thread.
class QUORIX_EXPORT WindowSession : private uikit::UIWindow::Client {
 public:
  WindowSession();
  ~WindowSession() override;
  WindowSession(const WindowSession&) = delete;
  WindowSession& operator=(const WindowSession&) = delete;

  /// The user works with `responder`. Controllers that are presented after this become its sheets.
  void used(Responder& responder);
  /// The settings of `opener` changed. Updates the sheets above it.
  void settingsChanged(const Responder& opener);
  /// The window got the keyboard focus.
  void becameKey();
  /// The window became visible or invisible.
  void visibilityChanged();

  /// The insets that the device covers at the window's edges. Sheets avoid them, open ones too.
  void setSafeArea(const layout::SideInsets& safeArea);
  const layout::SideInsets& safeArea() const { return safeArea_; }

  /// Makes a sheet above `opener` (null: above the window) that covers the whole window. It moves
  /// if `animated` is true and the opener's settings allow motion.
  SheetSession& makeSheet(Responder* opener, bool animated = true);
  /// The sheet that takes the input; null without one.
  SheetSession* topmost() const { return sheets_.empty() ? nullptr : sheets_.back(); }

 private:
  friend class SheetSession;

  virtual bool isVisible() const = 0;
  /// Makes the toolkit's sheet, which deletes itself after `vanish`.
  virtual SheetSession& newSheet(const Responder* opener) = 0;

  /// A controller and its sheet.
  struct Shown {
    std::shared_ptr<uikit::UIViewController> controller;
    std::weak_ptr<Responder*> sheet;
    swiftui::Binding<bool> isPresented;
  };

  void presentedControllersChanged(uikit::UIWindow& window, bool animated) override;
  void showPresented();
  void show(const std::shared_ptr<uikit::UIViewController>& controller);

  std::shared_ptr<uikit::UIWindow> window_ = std::make_shared<uikit::UIWindow>();
  std::shared_ptr<uikit::UIWindowScene> scene_ = std::make_shared<uikit::UIWindowScene>();
  std::weak_ptr<Responder*> used_;
  layout::SideInsets safeArea_;
  std::vector<SheetSession*> sheets_;  ///< presented and open ones, from the bottom up
  std::vector<Shown> shown_;           ///< from the bottom up
  bool animated_ = true;
  std::shared_ptr<WindowSession*> showQueued_;  ///< exists while a turn is queued
};

/// Makes the sheet that shows the presented `controller`. Closing it dismisses the controller. Main
/// thread.
QUORIX_EXPORT swiftui::Presentation controllerPresentation(
    const std::shared_ptr<uikit::UIViewController>& controller);

}  // namespace quorix::hosting
