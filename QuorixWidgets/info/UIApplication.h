#pragma once

#include <memory>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIWindow.h"

namespace quorix {

/// What the library asks of the running app. Main thread.
struct UIApplication : uikit::UIApplication {
  UIApplication() = delete;

  /// The window that the user works in: of the first scene in the foreground the key window, else
  /// its first visible one at the normal level, else its first one. With no scene in the foreground
  /// the key window of any. Null when there is none.
  static std::shared_ptr<uikit::UIWindow> getKeyWindow();
};

}  // namespace quorix
