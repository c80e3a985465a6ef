#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"

namespace quorix::uikit {

class UIWindow;

/// One running instance of the app's interface. Main thread.
class QUORIX_EXPORT UIScene {
 public:
  enum class ActivationState : std::uint8_t {
    unattached,
    foregroundActive,
    foregroundInactive,
    background
  };

  UIScene() = default;
  virtual ~UIScene() = default;
  UIScene(const UIScene&) = delete;
  UIScene& operator=(const UIScene&) = delete;

  ActivationState activationState() const { return state_; }
  /// For surfaces: the state that the system reports.
  void setActivationState(ActivationState state) { state_ = state; }

 private:
  ActivationState state_ = ActivationState::unattached;
};

/// A scene with windows, in the order in which they were added. Main thread.
class QUORIX_EXPORT UIWindowScene final : public UIScene {
 public:
  const std::vector<std::shared_ptr<UIWindow>>& windows() const { return windows_; }
  void addWindow(std::shared_ptr<UIWindow> window) { windows_.push_back(std::move(window)); }

 private:
  std::vector<std::shared_ptr<UIWindow>> windows_;
};

}  // namespace quorix::uikit
