#pragma once

#include <cstdint>

#include "platform/foundation/Export.h"

namespace quorix::uikit {

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
  /// For surfaces: what the system says.
  void setActivationState(ActivationState state) { state_ = state; }

 private:
  ActivationState state_ = ActivationState::unattached;
};

}  // namespace quorix::uikit
