#pragma once

#include "platform/render/Scene.h"

namespace quorix::hosting {

/// The ring around the element that has the keyboard focus. Points.
struct FocusRing {
  static constexpr double gap = 2;  ///< between the element and the ring
  static constexpr double width = 2;
  static constexpr double cornerRadius = 6;
  static constexpr double outset = gap + width;

  /// The ring's outer frame.
  static layout::Rect around(const layout::Rect& element) { return element.outset(outset); }

  /// The ring inside `frame`. Its contrast with a white or a black page is above 5:1. Guidelines
  /// require 3:1.
  static render::StrokeItem line(const layout::Rect& frame, graphics::Appearance appearance) {
    const bool dark = appearance == graphics::Appearance::dark;
    const graphics::RGBA color =
        dark ? graphics::RGBA{0x8a, 0xb4, 0xf8, 255} : graphics::RGBA{0x0b, 0x57, 0xd0, 255};
    return {frame, color, width, cornerRadius};
  }
};

}  // namespace quorix::hosting
