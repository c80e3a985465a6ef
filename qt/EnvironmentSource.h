#pragma once

#include <optional>

#include "platform/swiftui/Environment.h"

namespace quorix::qt {

/// What one surface tells its view: the desktop's settings, except where the host said otherwise.
/// A small value that every kind of surface holds; main thread.
struct EnvironmentSource {
  std::optional<graphics::Appearance> appearance;
  std::optional<layout::LayoutDirection> direction;
  std::optional<bool> motion;
  swiftui::ContentSizeCategory textSize = swiftui::ContentSizeCategory::large;

  /// `scale` is the surface's device pixels for each point.
  swiftui::Environment at(double scale) const;
  bool allowsMotion() const;
};

}  // namespace quorix::qt
