#include "platform/text/TextAnalysis.h"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace quorix::text {
namespace {

using layout::LayoutDirection;

/// The direction of a letter or of an invisible direction mark; absent for other characters.
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

std::vector<WordRange> unspacedWords(std::u16string_view text) {
  // Scripts below this code point put blanks between words. Most texts stop here, without ICU's
  // slow search.
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
