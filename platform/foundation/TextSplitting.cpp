#include "platform/foundation/TextSplitting.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/normalizer2.h>
#include <unicode/utext.h>

#include <algorithm>
#include <memory>
#include <string>

namespace quorix::foundation {
namespace {

struct Character {
  std::string_view spelling;
  std::string canonical;  // in normal form C
};

bool sameCharacter(const Character& a, const Character& b) { return a.canonical == b.canonical; }

/// ASCII without carriage returns, which join the line feed after them: each byte is a character
/// and equals nothing but itself.
bool isPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '\r'; });
}

/// Expensive to make, so each thread keeps one. Null when ICU lacks its data.
icu::BreakIterator* characterBreaks() {
  thread_local const auto breaks = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> made(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) made.reset();
    return made;
  }();
  return breaks.get();
}

icu::StringPiece piece(std::string_view text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// The characters of `text`; empty when ICU cannot tell.
std::vector<Character> characters(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const auto* composing = icu::Normalizer2::getNFCInstance(status);
  icu::BreakIterator* breaks = characterBreaks();
  UText source = UTEXT_INITIALIZER;
  utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
  const icu::LocalUTextPointer closing(&source);
  if (!breaks || U_FAILURE(status)) return {};
  breaks->setText(&source, status);
  // The usual case, and much the faster one: what a whole text is, its characters are.
  const bool composed = composing->isNormalizedUTF8(piece(text), status);

  std::vector<Character> result;
  std::int32_t start = 0;
  for (std::int32_t end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
    const std::string_view spelling = text.substr(start, end - start);
    Character& added = result.emplace_back(Character{spelling, {}});
    if (composed) {
      added.canonical = spelling;
    } else {
      icu::StringByteSink<std::string> sink(&added.canonical);
      composing->normalizeUTF8(0, piece(spelling), sink, nullptr, status);
    }
    start = end;
  }
  if (U_FAILURE(status)) return {};
  return result;
}

std::vector<std::string_view> splitPlain(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t found = text.find(separator); found != std::string_view::npos;
       found = text.find(separator, start)) {
    pieces.push_back(text.substr(start, found - start));
    start = found + separator.size();
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

}  // namespace

std::vector<std::string_view> components(std::string_view text, std::string_view separator) {
  if (separator.empty()) return {text};
  if (isPlain(text) && isPlain(separator)) return splitPlain(text, separator);
  const auto given = characters(text);
  const auto wanted = characters(separator);
  if (wanted.empty()) return {text};

  std::vector<std::string_view> pieces;
  const char* start = text.data();
  for (auto from = given.begin();;) {
    const auto found = std::search(from, given.end(), wanted.begin(), wanted.end(), sameCharacter);
    const char* const end =
        found == given.end() ? text.data() + text.size() : found->spelling.data();
    pieces.emplace_back(start, end - start);
    if (found == given.end()) return pieces;
    const Character& last = *(found + static_cast<std::ptrdiff_t>(wanted.size()) - 1);
    start = last.spelling.data() + last.spelling.size();
    from = found + static_cast<std::ptrdiff_t>(wanted.size());
  }
}

}  // namespace quorix::foundation
