#include "platform/foundation/StringsFile.h"

#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <optional>
#include <pugixml.hpp>
#include <utility>

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

/// Reads the XML form.
Result<StringTable> readXML(std::string_view text) {
  pugi::xml_document document;
  const auto failed = [&](std::ptrdiff_t offset, const std::string& what) {
    return stringsFileError(text, static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0)),
                            what);
  };
  const auto unexpected = [&](const pugi::xml_node& element) {
    return failed(element.offset_debug(), "unexpected <" + std::string(element.name()) + '>');
  };
  const auto isElement = [](const pugi::xml_node& node) {
    return node.type() == pugi::node_element;
  };
  const auto parsed =
      document.load_buffer(text.data(), text.size(),
                           pugi::parse_default | pugi::parse_ws_pcdata_single, pugi::encoding_utf8);
  if (!parsed) return failed(parsed.offset, parsed.description());
  pugi::xml_node root = document.document_element();
  if (std::string_view(root.name()) == "plist") root = root.find_child(isElement);
  if (!root) return stringsFileError(text, text.size(), "the property list is empty");
  if (std::string_view(root.name()) != "dict") return unexpected(root);

  StringTable table;
  std::optional<std::string> key;
  for (const pugi::xml_node& element : root.children()) {
    if (!isElement(element)) continue;
    if (std::string_view(element.name()) != (key ? "string" : "key")) return unexpected(element);
    std::string words;
    for (const pugi::xml_node& part : element.children()) {
      if (isElement(part)) return unexpected(part);
      words += part.value();
    }
    if (key) {
      table.insert_or_assign(*std::exchange(key, std::nullopt), std::move(words));
    } else {
      key = std::move(words);
    }
  }
  if (key) return failed(root.offset_debug(), "no value for \"" + *key + '"');
  return table;
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

Result<StringTable> read(std::string_view text) {
  if (const auto invalid = firstInvalidByte(text)) {
    return stringsFileError(text, *invalid, "a byte that is not UTF-8");
  }
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  const bool isXML = first != text.npos && text[first] == '<';
  return isXML ? readXML(text) : readTextPropertyList(text);
}

}  // namespace

Result<StringTable> readStringsFile(std::string_view bytes) {
  if (bytes.empty()) return stringsFileError(bytes, 0, "the file is empty");
  if (bytes.starts_with("bplist")) {
    return stringsFileError(bytes, 0, "a binary property list; convert it to text");
  }
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
    if (bytes.size() % 2 != 0) return stringsFileError({}, 0, "UTF-16 of an odd length");
    const auto size = static_cast<std::int32_t>(bytes.size());
    std::string text;
    return read(icu::UnicodeString(bytes.data(), size, "UTF-16").toUTF8String(text));
  }
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
  return read(bytes);
}

Error stringsFileError(std::string_view text, std::size_t offset, const std::string& what) {
  return {"StringsFile", 1, "line " + std::to_string(lineAt(text, offset)) + ": " + what};
}

}  // namespace quorix::foundation
