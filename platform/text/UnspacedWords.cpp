#include "platform/text/UnspacedWords.h"

#include <unicode/brkiter.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>

namespace quorix::text {

std::vector<WordRange> unspacedWords(std::u16string_view text) {
  // Nothing below is written without blanks; most texts end here, since ICU's words are dear.
  constexpr char16_t firstIdeographic = 0x2E80;
  std::vector<WordRange> words;
  const auto isUnspaced = [](char16_t c) { return c >= firstIdeographic; };
  if (std::none_of(text.begin(), text.end(), isUnspaced)) return words;
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::BreakIterator> breaks(
      icu::BreakIterator::createWordInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status) || !breaks) return words;
  const icu::UnicodeString source(text.data(), static_cast<std::int32_t>(text.size()));
  breaks->setText(source);
  std::int32_t start = breaks->first();
  for (std::int32_t end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
    const std::int32_t kind = breaks->getRuleStatus();
    if (kind >= UBRK_WORD_KANA && kind < UBRK_WORD_IDEO_LIMIT)
      words.push_back({start, end - start});
    start = end;
  }
  return words;
}

}  // namespace quorix::text
