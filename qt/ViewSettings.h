#pragma once

#include "platform/foundation/Export.h"
#include "platform/hosting/Settings.h"

namespace quorix::qt {

/// The settings that a host can choose for a view on any surface. Main thread.
class QUORIX_EXPORT ViewSettings {
 public:
  /// Light or dark; nothing follows the desktop, which is what holds until this is called.
  void setAppearance(std::optional<graphics::Appearance> appearance) {
    settings_.appearance = appearance;
    settingsChanged();
  }
  /// The reading direction; nothing follows the application's.
  void setLayoutDirection(std::optional<layout::LayoutDirection> direction) {
    settings_.direction = direction;
    settingsChanged();
  }
  /// The user's text size; nothing follows the desktop's where it tells it.
  void setTextSize(std::optional<swiftui::ContentSizeCategory> category) {
    settings_.textSize = category;
    settingsChanged();
  }
  /// Whether sheets move; nothing follows the user's wish where the desktop passes it on.
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
