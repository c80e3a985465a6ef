#pragma once

#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

namespace quorix::hosting {

/// The ring around the element that has the keyboard focus. Points.
struct FocusRing {
  static constexpr double gap = 2;  ///< between the element and the ring
  static constexpr double width = 2;
  static constexpr double radius = 5;  ///< at the middle of the line
  static constexpr double outset = gap + width;

  /// The ring's outer frame; the line is inside it.
  static layout::Rect around(const layout::Rect& element) {
    return {{element.left() - outset, element.top() - outset},
            {element.size.width + 2 * outset, element.size.height + 2 * outset}};
  }

  /// The contrast with a white or a black page is above 5:1. Guidelines require 3:1.
  static constexpr graphics::RGBA color(graphics::Appearance appearance) {
    return appearance == graphics::Appearance::dark ? graphics::RGBA{0x8a, 0xb4, 0xf8, 255}
                                                    : graphics::RGBA{0x0b, 0x57, 0xd0, 255};
  }
};

}  // namespace quorix::hosting
