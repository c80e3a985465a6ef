#include "platform/foundation/StringsFile.h"

#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/foundation/StringsFileError.h"
#include "platform/foundation/TextPropertyList.h"
#include "platform/foundation/XMLPropertyList.h"

namespace quorix::foundation {
namespace {

constexpr std::string_view kUTF8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUTF16LittleMark = "\xFF\xFE";
constexpr std::string_view kUTF16BigMark = "\xFE\xFF";

std::string fromUTF16(std::string_view bytes, bool bigEndian) {
  icu::UnicodeString units;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    units.append(static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first));
  }
  std::string text;
  return units.toUTF8String(text);
}

/// Where `text` stops being UTF-8, if it does.
std::optional<std::size_t> firstInvalidByte(std::string_view text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const auto size = static_cast<std::int64_t>(text.size());
  for (std::int64_t i = 0; i < size;) {
    const std::int64_t start = i;
    UChar32 codePoint = 0;
    U8_NEXT(bytes, i, size, codePoint);
    if (codePoint < 0) return static_cast<std::size_t>(start);
  }
  return std::nullopt;
}

bool isXML(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  // The other form knows "<" as well: "<0f 1a>" are bytes.
  return text.starts_with("<?") || text.starts_with("<!") || text.starts_with("<plist") ||
         text.starts_with("<dict");
}

Result<StringTable> read(std::string_view text) {
  if (const auto invalid = firstInvalidByte(text)) {
    return malformedStringsFile(text, *invalid, "a byte that is not UTF-8");
  }
  return isXML(text) ? readXMLPropertyList(text) : readTextPropertyList(text);
}

}  // namespace

Result<StringTable> readStringsFile(std::string_view bytes) {
  if (bytes.empty()) return malformedStringsFile(bytes, 0, "the file is empty");
  if (bytes.starts_with("bplist")) {
    return malformedStringsFile(bytes, 0, "a binary property list; convert it to text");
  }
  if (bytes.starts_with(kUTF16LittleMark) || bytes.starts_with(kUTF16BigMark)) {
    if (bytes.size() % 2 != 0) return malformedStringsFile({}, 0, "UTF-16 of an odd length");
    return read(fromUTF16(bytes.substr(2), bytes.starts_with(kUTF16BigMark)));
  }
  if (bytes.starts_with(kUTF8Mark)) bytes.remove_prefix(kUTF8Mark.size());
  return read(bytes);
}

}  // namespace quorix::foundation
