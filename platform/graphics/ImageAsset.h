#pragma once

#include <optional>

#include "platform/foundation/Data.h"
#include "platform/graphics/RGBA.h"

namespace quorix::graphics {

/// A named image: SVG files and how to draw them. Cheap to copy.
struct ImageAsset {
  foundation::Data light;                ///< an SVG file
  std::optional<foundation::Data> dark;  ///< the same picture for dark surfaces, where it differs
  bool isTemplate = false;               ///< drawn in the foreground colour in place of its own
  double width = 0;                      ///< natural size in points, above 0
  double height = 0;

  const foundation::Data& svg(Appearance appearance) const {
    return appearance == Appearance::dark && dark ? *dark : light;
  }
};

}  // namespace quorix::graphics
