#pragma once

#include <string>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

namespace quorix::render {

/// The settings that a display list is made for.
struct Display {
  graphics::Appearance appearance = graphics::Appearance::light;
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  double scale = 1;           ///< device pixels for each point
  std::string language = {};  ///< of labels without a text of their own; a code such as "tr"
};

}  // namespace quorix::render
