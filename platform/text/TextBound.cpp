#include "platform/text/TextBound.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/foundation/UnicodeText.h"

namespace quorix::text {
namespace {

constexpr std::string_view ellipsis = "\u2026";
constexpr std::size_t costOfOthers = 3;

/// The start of a text.
struct Prefix {
  std::size_t cost = 0;
  std::size_t bytes = 0;
};

/// The cost of shaping a code point, in letters of Latin, Greek or Cyrillic script. Marks, other
/// scripts and symbols take longer, mostly because their faces must be looked up.
std::size_t costOf(std::int32_t codePoint) {
  const bool letter = codePoint >= 0 && codePoint < 0x300;
  const bool greekOrCyrillic = codePoint >= 0x370 && codePoint < 0x590;
  const bool punctuation = codePoint >= 0x2010 && codePoint < 0x20C0;  // and currency signs
  return letter || greekOrCyrillic || punctuation ? 1 : costOfOthers;
}

/// The longest start of `utf8` that costs no more than `most`. Invalid bytes count as code points.
Prefix prefix(std::string_view utf8, std::size_t most) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(utf8.data());
  Prefix found;
  while (found.bytes < utf8.size()) {
    // Only this sequence: ICU counts in 32 bits, and a text may be longer.
    const auto rest = std::min<std::size_t>(utf8.size() - found.bytes, U8_MAX_LENGTH);
    const std::uint8_t* const at = bytes + found.bytes;
    std::int32_t length = 0;
    std::int32_t codePoint = 0;
    U8_NEXT(at, length, static_cast<std::int32_t>(rest), codePoint);
    const std::size_t cost = costOf(codePoint);
    if (found.cost + cost > most) break;
    found.bytes += static_cast<std::size_t>(length);
    found.cost += cost;
  }
  return found;
}

}  // namespace

std::string bounded(std::string utf8, std::size_t most) {
  if (utf8.size() * costOfOthers <= most) return utf8;
  const Prefix whole = prefix(utf8, most);
  if (whole.bytes == utf8.size()) return utf8;
  const std::string_view looked = std::string_view(utf8).substr(0, whole.bytes);
  const std::size_t kept = prefix(looked, std::max<std::size_t>(most, 1) - 1).bytes;
  const std::size_t end = foundation::characterEndUpTo(looked, kept);
  // One letter can carry any number of marks: cut between those rather than show nothing.
  std::string cut(looked.substr(0, end > 0 ? end : kept));
  cut += ellipsis;
  return cut;
}

void bound(AttributedText& text, std::size_t most) {
  std::size_t bytes = 0;
  for (const Run& run : text.runs) bytes += run.text.size();
  if (bytes * costOfOthers <= most) return;
  std::size_t left = most;
  for (auto run = text.runs.begin(); run != text.runs.end(); ++run) {
    const Prefix start = prefix(run->text, left);
    if (start.bytes == run->text.size()) {
      left -= start.cost;
      continue;
    }
    if (left == 0 && run != text.runs.begin()) {
      // The run before takes the ellipsis.
      --run;
      left = prefix(run->text, most).cost;
      run->text += ellipsis;
    }
    run->text = bounded(std::move(run->text), left);
    text.runs.erase(std::next(run), text.runs.end());
    return;
  }
}

}  // namespace quorix::text
