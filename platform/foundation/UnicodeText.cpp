#include "platform/foundation/UnicodeText.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>

#include <algorithm>
#include <memory>

namespace quorix::foundation {
namespace {

using Pieces = std::vector<std::string_view>;

bool isASCII(std::string_view text) {
  unsigned char bits = 0;  // no branch in the loop, so that compilers vectorize it
  for (const char c : text) bits |= static_cast<unsigned char>(c);
  return bits < 0x80;
}

/// Whether each byte is a character. A carriage return forms one character with a line feed after
/// it.
bool isPlain(std::string_view text) { return isASCII(text) && text.find('\r') == text.npos; }

icu::StringPiece piece(std::string_view text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// Normal form C: canonically equivalent texts have the same spelling in it. Null when ICU fails.
const icu::Normalizer2* normalFormC() {
  UErrorCode status = U_ZERO_ERROR;
  const auto* composition = icu::Normalizer2::getNFCInstance(status);
  return U_SUCCESS(status) ? composition : nullptr;
}

bool isIn(const icu::Normalizer2& composition, std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  return composition.isNormalizedUTF8(piece(text), status) && U_SUCCESS(status);
}

std::string composed(std::string_view text, const icu::Normalizer2& composition) {
  UErrorCode status = U_ZERO_ERROR;
  std::string result;
  icu::StringByteSink<std::string> sink(&result);
  composition.normalizeUTF8(0, piece(text), sink, nullptr, status);
  return result;
}

std::unique_ptr<icu::BreakIterator> makeCharacterBreaks() {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::BreakIterator> breaks(
      icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  if (U_FAILURE(status)) breaks.reset();
  return breaks;
}

/// Cached for each thread, because ICU takes long to make it.
thread_local const std::unique_ptr<icu::BreakIterator> threadsBreaks = makeCharacterBreaks();

/// The boundaries of the characters of `text`, valid until the thread's next call; null when ICU
/// fails.
icu::BreakIterator* characterBreaks(std::string_view text) {
  icu::BreakIterator* const breaks = threadsBreaks.get();
  UErrorCode status = U_ZERO_ERROR;
  UText source = UTEXT_INITIALIZER;
  utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
  const icu::LocalUTextPointer closing(&source);
  if (breaks) breaks->setText(&source, status);
  return U_SUCCESS(status) ? breaks : nullptr;
}

/// Splits at the bytes of `separator` if `isBoundary` accepts their start and end.
template <class IsBoundary>
Pieces splitAtBytes(std::string_view text, std::string_view separator, IsBoundary isBoundary) {
  Pieces pieces;
  pieces.reserve(4);  // most texts have few
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos;) {
    const std::size_t end = at + separator.size();
    const bool whole = isBoundary(at) && isBoundary(end);
    if (whole) {
      pieces.push_back(text.substr(start, at - start));
      start = end;
    }
    at = text.find(separator, whole ? end : at + 1);
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

struct Character {
  std::string_view spelling;
  std::string composed;
};

std::vector<Character> characters(std::string_view text, const icu::Normalizer2& composition) {
  std::vector<Character> result;
  icu::BreakIterator* const breaks = characterBreaks(text);
  if (!breaks) return result;
  std::int32_t start = 0;
  for (std::int32_t end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
    const std::string_view spelling = text.substr(start, end - start);
    result.push_back({spelling, composed(spelling, composition)});
    start = end;
  }
  return result;
}

/// Splits texts that are not in normal form C. Slower.
Pieces splitAtCharacters(std::string_view text, std::string_view separator,
                         const icu::Normalizer2& composition) {
  const auto given = characters(text, composition);
  const auto wanted = characters(separator, composition);
  if (wanted.empty()) return {text};
  const auto same = [](const auto& a, const auto& b) { return a.composed == b.composed; };
  Pieces pieces;
  const char* start = text.data();
  const char* const textEnd = start + text.size();
  for (auto from = given.begin();;) {
    const auto found = std::search(from, given.end(), wanted.begin(), wanted.end(), same);
    const char* const end = found == given.end() ? textEnd : found->spelling.data();
    pieces.emplace_back(start, end - start);
    if (found == given.end()) return pieces;
    from = found + static_cast<std::ptrdiff_t>(wanted.size());
    start = from == given.end() ? textEnd : from->spelling.data();
  }
}

}  // namespace

std::string uppercased(std::string_view text, std::string_view language) {
  std::string result;
  // In ASCII, only Turkish and Azerbaijani have capitals of their own.
  if (isASCII(text) && !language.starts_with("tr") && !language.starts_with("az")) {
    result = text;
    for (char& c : result) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return result;
  }
  const icu::Locale locale =
      language.empty() ? icu::Locale::getRoot() : icu::Locale(std::string(language).c_str());
  return icu::UnicodeString::fromUTF8(piece(text)).toUpper(locale).toUTF8String(result);
}

std::vector<std::string_view> components(std::string_view text, std::string_view separator) {
  if (separator.empty()) return {text};
  if (isPlain(text) && isPlain(separator)) {
    return splitAtBytes(text, separator, [](std::size_t) { return true; });
  }
  const auto* composition = normalFormC();
  if (!composition) return {text};
  if (!isIn(*composition, text) || !isIn(*composition, separator)) {
    return splitAtCharacters(text, separator, *composition);
  }
  icu::BreakIterator* const breaks = characterBreaks(text);
  if (!breaks) return {text};
  return splitAtBytes(text, separator, [&](std::size_t offset) {
    return breaks->isBoundary(static_cast<std::int32_t>(offset)) != 0;
  });
}

std::size_t characterEndUpTo(std::string_view text, std::size_t offset) {
  icu::BreakIterator* const breaks = characterBreaks(text);
  if (!breaks) return offset;
  const auto wanted = static_cast<std::int32_t>(offset);
  const std::int32_t found = breaks->isBoundary(wanted) != 0 ? wanted : breaks->preceding(wanted);
  return static_cast<std::size_t>(std::max(found, 0));
}

}  // namespace quorix::foundation
