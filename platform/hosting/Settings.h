#pragma once

#include <optional>

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

}  // namespace quorix::hosting
