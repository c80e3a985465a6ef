#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/text/AttributedText.h"

namespace quorix::text {

/// The direction that the words of `text` run in, not the side that its lines are aligned to: that
/// of its first letter, and left to right without letters, so that "4,00 €" and "18 %" keep their
/// order on a right-to-left page. On such a page, a text with any letter of a right-to-left script
/// runs as the page does, even if it begins with a foreign name. Any thread.
///
///     bool runsFromTheRight(const AttributedText& text) {
///       return baseDirection(text) == layout::LayoutDirection::rightToLeft;
///     }
QUORIX_EXPORT layout::LayoutDirection baseDirection(const AttributedText& text);

/// A word in a text, in UTF-16 units.
struct WordRange {
  std::int32_t start;
  std::int32_t length;
};

/// The words of `text` in scripts without blanks between words, where a line may end within a word:
/// 返品 and 手数料 in 返品手数料. Any thread.
QUORIX_EXPORT std::vector<WordRange> unspacedWords(std::u16string_view text);

}  // namespace quorix::text
