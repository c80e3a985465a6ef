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

}  // namespace quorix::graphics
