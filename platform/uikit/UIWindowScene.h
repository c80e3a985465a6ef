#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIScene.h"
#include "platform/uikit/UIWindow.h"

namespace quorix::uikit {

/// A scene with windows, in the order in which they came. Main thread.
class QUORIX_EXPORT UIWindowScene final : public UIScene {
 public:
  const std::vector<std::shared_ptr<UIWindow>>& windows() const { return windows_; }
  void addWindow(std::shared_ptr<UIWindow> window) { windows_.push_back(std::move(window)); }
  void removeWindow(const std::shared_ptr<UIWindow>& window) { std::erase(windows_, window); }

 private:
  std::vector<std::shared_ptr<UIWindow>> windows_;
};

}  // namespace quorix::uikit
