#pragma once

#include <cstdint>

namespace quorix::graphics {

/// A color in sRGB, eight bits a channel, not premultiplied.
struct RGBA {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 255;

  bool operator==(const RGBA&) const = default;
};

/// Whether the surface shows dark content on light or light content on dark.
enum class Appearance : std::uint8_t { light, dark };

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
