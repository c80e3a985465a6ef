#pragma once

#include <string>

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

namespace quorix::render {

/// What a scene is made for.
struct Display {
  graphics::Appearance appearance = graphics::Appearance::light;
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  double scale = 1;           ///< device pixels for each point
  std::string language = {};  ///< of what has no words of its own, as a code such as "tr"
};

}  // namespace quorix::render
