#pragma once

#include "platform/foundation/Export.h"
#include "platform/hosting/Settings.h"

namespace quorix::qt {

/// The settings that a host can choose for a view on any surface. Main thread.
class QUORIX_EXPORT ViewSettings {
 public:
  /// Light or dark. `std::nullopt` follows the desktop, as do all views until this is called.
  void setAppearance(std::optional<graphics::Appearance> appearance) {
    settings_.appearance = appearance;
    settingsChanged();
  }
  /// The reading direction. `std::nullopt` follows the application's.
  void setLayoutDirection(std::optional<layout::LayoutDirection> direction) {
    settings_.direction = direction;
    settingsChanged();
  }
  /// The user's text size. `std::nullopt` follows the desktop's, where it has one.
  void setTextSize(std::optional<swiftui::ContentSizeCategory> category) {
    settings_.textSize = category;
    settingsChanged();
  }
  /// Whether sheets move. `std::nullopt` follows the user's wish, where the desktop tells it.
  void setMotion(std::optional<bool> motion) {
    settings_.motion = motion;
    settingsChanged();
  }

 protected:
  ViewSettings() = default;
  ~ViewSettings() = default;
  const hosting::HostSettings& settings() const { return settings_; }

 private:
  virtual void settingsChanged() = 0;

  hosting::HostSettings settings_;
};

}  // namespace quorix::qt
