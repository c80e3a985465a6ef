#include "platform/foundation/Graphemes.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>

namespace quorix::foundation {
namespace {

bool isASCII(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

constexpr std::size_t kLongestSequence = 4;

int breakProperty(UChar32 codePoint) {
  return u_getIntPropertyValue(codePoint, UCHAR_GRAPHEME_CLUSTER_BREAK);
}

/// Whether `text` starts with a code point that joins the character before it.
bool startsWithExtension(std::string_view text) {
  if (text.empty() || isASCII(text.front())) return false;
  const int property =
      breakProperty(icu::UnicodeString::fromUTF8(text.substr(0, kLongestSequence)).char32At(0));
  return property == U_GCB_EXTEND || property == U_GCB_ZWJ || property == U_GCB_SPACING_MARK;
}

/// Whether `text` ends with a code point that takes the following one into its character.
bool endsWithPrepend(std::string_view text) {
  if (text.empty() || isASCII(text.back())) return false;
  text.remove_prefix(text.size() - std::min(text.size(), kLongestSequence));
  const auto last = icu::UnicodeString::fromUTF8(text);
  return breakProperty(last.char32At(last.length() - 1)) == U_GCB_PREPEND;
}

}  // namespace

std::vector<std::string_view> splitCharacters(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  pieces.reserve(4);  // most texts have few
  const auto add = [&](std::size_t start, std::size_t end) {
    if (end > start) pieces.push_back(text.substr(start, end - start));
  };
  std::size_t start = 0;
  for (std::size_t i = text.find(separator); i != std::string_view::npos;
       i = text.find(separator, i + 1)) {
    // Printable ASCII has no break rules of its own: only its two neighbours can join it.
    if (startsWithExtension(text.substr(i + 1)) || endsWithPrepend(text.substr(0, i))) continue;
    add(start, i);
    start = i + 1;
  }
  add(start, text.size());
  return pieces;
}

}  // namespace quorix::foundation
