#pragma once

#include <string>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/swiftui/ContentSizeCategory.h"

namespace quorix::swiftui {

/// What a surface tells the views on it: the user's settings and the screen.
struct Environment {
  graphics::Appearance appearance = graphics::Appearance::light;
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  ContentSizeCategory textSize = ContentSizeCategory::large;
  double scale = 1;      ///< device pixels for each point
  std::string language;  ///< the user's own, a code; for upper case and the host's texts
  bool operator==(const Environment&) const = default;
};

}  // namespace quorix::swiftui
