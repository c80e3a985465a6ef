#pragma once

#include <optional>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Environment.h"

namespace quorix::hosting {

/// The settings of a view. Its sheet copies them.
struct Settings {
  swiftui::Environment environment;
  bool motion = true;  ///< whether sheets move when they open and close
  bool operator==(const Settings&) const = default;
};

/// The host's settings for one view. An absent value follows the desktop.
struct HostSettings {
  std::optional<graphics::Appearance> appearance;
  std::optional<layout::LayoutDirection> direction;
  std::optional<bool> motion;
  std::optional<swiftui::ContentSizeCategory> textSize;

  swiftui::Environment over(swiftui::Environment desktop) const {
    desktop.appearance = appearance.value_or(desktop.appearance);
    desktop.direction = direction.value_or(desktop.direction);
    desktop.textSize = textSize.value_or(desktop.textSize);
    return desktop;
  }
};

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
  const HostSettings& settings() const { return settings_; }

 private:
  virtual void settingsChanged() = 0;

  HostSettings settings_;
};

}  // namespace quorix::hosting
