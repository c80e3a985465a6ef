#pragma once

#include "platform/graphics/RGBA.h"

namespace quorix::graphics {

/// The value of a named color in each appearance.
struct ColorSet {
  RGBA light;
  RGBA dark;

  RGBA resolve(Appearance appearance) const {
    return appearance == Appearance::dark ? dark : light;
  }

  bool operator==(const ColorSet&) const = default;
};

}  // namespace quorix::graphics
