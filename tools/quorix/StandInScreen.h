#pragma once

#include <memory>

#include "platform/uikit/UIScene.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/UIWindow.h"

namespace quorix::tool {

/// The app's one screen, as far as imperative views can tell: what they present over it, it keeps.
/// Main thread.
class StandInScreen {
 public:
  StandInScreen();
  ~StandInScreen();
  StandInScreen(const StandInScreen&) = delete;
  StandInScreen& operator=(const StandInScreen&) = delete;

  /// Taps the first view in `root` that takes taps, and returns what that presents; null when it
  /// presents nothing.
  std::shared_ptr<uikit::UIViewController> presentedByTap(const uikit::UIView& root) const;

 private:
  std::shared_ptr<uikit::UIWindow> window_ = std::make_shared<uikit::UIWindow>();
  std::shared_ptr<uikit::UIWindowScene> scene_ = std::make_shared<uikit::UIWindowScene>();
};

}  // namespace quorix::tool
