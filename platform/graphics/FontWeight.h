#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorix::graphics {

/// With the numbers of OpenType.
enum class FontWeight : std::uint16_t { regular = 400, medium = 500, semibold = 600, bold = 700 };

constexpr std::string_view nameOf(FontWeight weight) {
  constexpr std::string_view names[] = {"regular", "medium", "semibold", "bold"};
  return names[static_cast<std::size_t>(weight) / 100 - 4];
}

}  // namespace quorix::graphics
