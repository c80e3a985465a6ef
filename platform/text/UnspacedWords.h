#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"

namespace quorix::text {

/// A word in a text, in UTF-16 units.
struct WordRange {
  std::int32_t start;
  std::int32_t length;
};

/// The words of `text` in scripts that set no blanks between them, where a line may end within a
/// word: 返品 and 手数料 in 返品手数料. Any thread.
QUORIX_EXPORT std::vector<WordRange> unspacedWords(std::u16string_view text);

}  // namespace quorix::text
