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

/// A window of a toolkit with the sheets over it. For imperative views it is a scene with one
/// window. The root controller of that stands for the host's own screen, and controllers presented
/// over it are shown as sheets. Main thread.
class QUORIX_EXPORT WindowSession : private uikit::UIWindow::Client {
 public:
  WindowSession();
  ~WindowSession() override;
  WindowSession(const WindowSession&) = delete;
  WindowSession& operator=(const WindowSession&) = delete;

  /// The user works with `responder`: controllers that are presented now are its sheets.
  void used(Responder& responder);
  /// The settings of `opener` changed: the sheets above it follow.
  void settingsChanged(const Responder& opener);
  /// The window got the keyboard focus.
  void becameKey();
  /// The window came into sight or went out of it.
  void visibilityChanged();

  /// What the device covers at the window's edges. All sheets keep clear of it, also open ones.
  void setSafeArea(const layout::SideInsets& safeArea);
  const layout::SideInsets& safeArea() const { return safeArea_; }

  /// A new sheet above `opener` (null: above the window) and over the whole window. It moves if
  /// `animated`, and the settings of the opener allow it.
  SheetSession& makeSheet(Responder* opener, bool animated = true);
  /// The sheet that takes the input; null without one.
  SheetSession* topmost() const { return sheets_.empty() ? nullptr : sheets_.back(); }

 private:
  friend class SheetSession;

  virtual bool isVisible() const = 0;
  /// Makes the toolkit's sheet, which deletes itself after `vanish`.
  virtual SheetSession& newSheet(const Responder* opener) = 0;

  /// A controller on its sheet.
  struct Shown {
    std::shared_ptr<uikit::UIViewController> controller;
    std::weak_ptr<Responder*> sheet;
    swiftui::Binding<bool> isPresented;
  };

  void presentedControllersChanged(uikit::UIWindow& window, bool animated) override;
  void showPresented();
  void show(const std::shared_ptr<uikit::UIViewController>& controller);
  void updateActivation();

  std::shared_ptr<uikit::UIWindow> window_ = std::make_shared<uikit::UIWindow>();
  std::shared_ptr<uikit::UIWindowScene> scene_ = std::make_shared<uikit::UIWindowScene>();
  std::weak_ptr<Responder*> used_;
  layout::SideInsets safeArea_;
  std::vector<SheetSession*> sheets_;  ///< those presented and open, from the bottom up
  std::vector<Shown> shown_;           ///< from the bottom up
  bool animated_ = true;
  std::shared_ptr<WindowSession*> showQueued_;  ///< while a turn is on its way
};

/// The sheet that shows the presented `controller`: closing it dismisses the controller. Main
/// thread.
QUORIX_EXPORT swiftui::Presentation controllerPresentation(
    const std::shared_ptr<uikit::UIViewController>& controller);

}  // namespace quorix::hosting
