#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/text/AttributedText.h"

namespace quorix::text {

/// The direction of the words of `text`. It does not set the side that lines are aligned to. It is
/// the direction of the first letter. Without letters it is left to right, so that "4,00 €" and
/// "18 %" keep their order on a right-to-left page. On such a page, one right-to-left letter makes
/// the whole text right-to-left, even if it begins with a foreign name. Any thread.
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

/// The words of `text` in scripts that write words without blanks, where a line may otherwise break
/// inside a word: 返品 and 手数料 in 返品手数料. Any thread.
QUORIX_EXPORT std::vector<WordRange> unspacedWords(std::u16string_view text);

}  // namespace quorix::text
