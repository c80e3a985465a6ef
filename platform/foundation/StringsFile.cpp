#include "platform/foundation/StringsFile.h"

#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <pugixml.hpp>

namespace quorix::foundation {
namespace {

/// The line of `offset`, counted from 1. Lines end with LF, CR or both.
std::size_t lineAt(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, std::min(offset, text.size()));
  std::size_t line = 1;
  for (std::size_t i = 0; i < before.size(); ++i) {
    const bool carriageReturn = before[i] == '\r' && !before.substr(i + 1).starts_with('\n');
    if (before[i] == '\n' || carriageReturn) ++line;
  }
  return line;
}

Error error(StringsFileErrorCode code, std::string_view text, std::size_t offset,
            const std::string& what) {
  return {"StringsFile", static_cast<std::int64_t>(code),
          "line " + std::to_string(lineAt(text, offset)) + ": " + what};
}

constexpr std::string_view otherValues[] = {"array", "data", "date",    "dict",
                                            "false", "real", "integer", "true"};

std::optional<pugi::xml_node> firstElement(const pugi::xml_node& parent) {
  for (const pugi::xml_node& child : parent.children()) {
    if (child.type() == pugi::node_element) return child;
  }
  return std::nullopt;
}

/// The text of an element; absent if it has child elements.
std::optional<std::string> textOf(const pugi::xml_node& element) {
  std::string text;
  for (const pugi::xml_node& child : element.children()) {
    if (child.type() == pugi::node_element) return std::nullopt;
    text += child.value();
  }
  return text;
}

/// Reads the XML form.
class XMLReader {
 public:
  explicit XMLReader(std::string_view text) : text_(text) {}

  Result<StringTable> read() {
    const auto parsed = document_.load_buffer(text_.data(), text_.size(),
                                              pugi::parse_default | pugi::parse_ws_pcdata_single,
                                              pugi::encoding_utf8);
    if (!parsed) {
      return malformedStringsFile(text_, static_cast<std::size_t>(parsed.offset),
                                  parsed.description());
    }
    auto root = firstElement(document_);
    if (root && name(*root) == "plist") root = firstElement(*root);
    if (!root) return malformedStringsFile(text_, text_.size(), "the property list is empty");
    if (name(*root) == "dict") return table(*root);
    if (name(*root) == "string" || isOtherValue(*root)) {
      return notAStringTable(text_, offset(*root), "no table but a value: " + tag(*root));
    }
    return unknown(*root);
  }

 private:
  static std::string_view name(const pugi::xml_node& element) { return element.name(); }
  static std::string tag(const pugi::xml_node& element) {
    return '<' + std::string(name(element)) + '>';
  }
  static bool isOtherValue(const pugi::xml_node& element) {
    return std::ranges::find(otherValues, name(element)) != std::end(otherValues);
  }
  static std::size_t offset(const pugi::xml_node& element) {
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(element.offset_debug(), 0));
  }
  Error unknown(const pugi::xml_node& element) const {
    return malformedStringsFile(text_, offset(element), "unexpected " + tag(element));
  }

  Result<StringTable> table(const pugi::xml_node& dictionary) const {
    StringTable table;
    std::map<std::string, pugi::xml_node> others;
    std::optional<std::string> key;
    for (const pugi::xml_node& element : dictionary.children()) {
      if (element.type() != pugi::node_element) continue;
      const bool isText = name(element) == (key ? "string" : "key");
      if (!isText && !(key && isOtherValue(element))) return unknown(element);
      const auto text = isText ? textOf(element) : std::nullopt;
      if (isText && !text) return unknown(*firstElement(element));
      if (!key) {
        key = text;
        continue;
      }
      others.erase(*key);
      table.erase(*key);
      if (text) {
        table.emplace(*key, *text);
      } else {
        others.emplace(*key, element);
      }
      key.reset();
    }
    if (key) return malformedStringsFile(text_, offset(dictionary), "no value for \"" + *key + '"');
    if (others.empty()) return table;
    const auto& [otherKey, element] = *others.begin();
    return notAStringTable(text_, offset(element), "the value of \"" + otherKey + "\" is no text");
  }

  std::string_view text_;
  pugi::xml_document document_;
};

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16LittleMark = "\xFF\xFE";
constexpr std::string_view utf16BigMark = "\xFE\xFF";

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

/// The offset of the first byte of `text` that is not UTF-8.
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
  // "<" alone does not mean XML: in the text form it starts bytes, "<0f 1a>".
  return text.starts_with("<?") || text.starts_with("<!") || text.starts_with("<plist") ||
         text.starts_with("<dict");
}

Result<StringTable> read(std::string_view text) {
  if (const auto invalid = firstInvalidByte(text)) {
    return malformedStringsFile(text, *invalid, "a byte that is not UTF-8");
  }
  return isXML(text) ? XMLReader(text).read() : readTextPropertyList(text);
}

}  // namespace

Result<StringTable> readStringsFile(std::string_view bytes) {
  if (bytes.empty()) return malformedStringsFile(bytes, 0, "the file is empty");
  if (bytes.starts_with("bplist")) {
    return malformedStringsFile(bytes, 0, "a binary property list; convert it to text");
  }
  if (bytes.starts_with(utf16LittleMark) || bytes.starts_with(utf16BigMark)) {
    if (bytes.size() % 2 != 0) return malformedStringsFile({}, 0, "UTF-16 of an odd length");
    return read(fromUTF16(bytes.substr(2), bytes.starts_with(utf16BigMark)));
  }
  if (bytes.starts_with(utf8Mark)) bytes.remove_prefix(utf8Mark.size());
  return read(bytes);
}

Error malformedStringsFile(std::string_view text, std::size_t offset, const std::string& what) {
  return error(StringsFileErrorCode::malformed, text, offset, what);
}

Error notAStringTable(std::string_view text, std::size_t offset, const std::string& what) {
  return error(StringsFileErrorCode::notATable, text, offset, what);
}

}  // namespace quorix::foundation
