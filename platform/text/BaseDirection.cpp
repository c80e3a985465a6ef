#include "platform/text/BaseDirection.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <optional>

namespace quorix::text {
namespace {

using layout::LayoutDirection;

/// The direction of a letter, or of a mark that stands for one; nothing for any other character.
std::optional<LayoutDirection> directionOf(UChar32 character) {
  switch (u_charDirection(character)) {
    case U_LEFT_TO_RIGHT:
      return LayoutDirection::leftToRight;
    case U_RIGHT_TO_LEFT:
    case U_RIGHT_TO_LEFT_ARABIC:
      return LayoutDirection::rightToLeft;
    default:
      return std::nullopt;
  }
}

}  // namespace

LayoutDirection baseDirection(const AttributedText& text) {
  for (const Run& run : text.runs) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(run.text.data());
    const auto length = static_cast<std::int32_t>(run.text.size());
    for (std::int32_t at = 0; at < length;) {
      UChar32 character = 0;
      U8_NEXT(bytes, at, length, character);
      const auto direction = character < 0 ? std::nullopt : directionOf(character);
      if (direction == LayoutDirection::rightToLeft) return *direction;
      if (direction && text.direction == LayoutDirection::leftToRight) return *direction;
    }
  }
  return LayoutDirection::leftToRight;
}

}  // namespace quorix::text
