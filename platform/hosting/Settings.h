#pragma once

#include <optional>

#include "platform/swiftui/Environment.h"

namespace quorix::hosting {

/// The settings of a view, as its sheet takes them over.
struct Settings {
  swiftui::Environment environment;
  bool motion = true;  ///< sheets rise and fall
  bool operator==(const Settings&) const = default;
};

/// What the host chose for one view. Absent values follow the desktop.
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
