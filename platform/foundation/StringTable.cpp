#include "platform/foundation/StringTable.h"

#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <memory>
#include <pugixml.hpp>
#include <utility>

#include "platform/foundation/Cache.h"
#include "platform/foundation/Runtime.h"
#include "platform/foundation/StringFormat.h"

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

/// Reads the XML form.
Result<StringTable> readXML(std::string_view text) {
  pugi::xml_document document;
  const auto at = [](std::ptrdiff_t offset) {
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0));
  };
  const auto name = [](const pugi::xml_node& node) { return std::string_view(node.name()); };
  const auto tag = [&](const pugi::xml_node& element) {
    return '<' + std::string(name(element)) + '>';
  };
  const auto unexpected = [&](const pugi::xml_node& element) {
    return malformedStringsFile(text, at(element.offset_debug()), "unexpected " + tag(element));
  };
  const auto isElement = [](const pugi::xml_node& node) {
    return node.type() == pugi::node_element;
  };
  const auto isOther = [&](const pugi::xml_node& element) {
    return std::ranges::find(otherValues, name(element)) != std::end(otherValues);
  };
  const auto parsed =
      document.load_buffer(text.data(), text.size(),
                           pugi::parse_default | pugi::parse_ws_pcdata_single, pugi::encoding_utf8);
  if (!parsed) return malformedStringsFile(text, at(parsed.offset), parsed.description());
  pugi::xml_node root = document.document_element();
  if (name(root) == "plist") root = root.find_child(isElement);
  if (!root) return malformedStringsFile(text, text.size(), "the property list is empty");
  if (name(root) != "dict") {
    if (name(root) != "string" && !isOther(root)) return unexpected(root);
    return notAStringTable(text, at(root.offset_debug()), "no table but a value: " + tag(root));
  }

  StringTable table;
  std::map<std::string, std::ptrdiff_t> others;
  std::optional<std::string> key;
  for (const pugi::xml_node& element : root.children()) {
    if (!isElement(element)) continue;
    if (key && isOther(element)) {
      table.erase(*key);
      others.insert_or_assign(*std::exchange(key, std::nullopt), element.offset_debug());
      continue;
    }
    if (name(element) != (key ? "string" : "key")) return unexpected(element);
    std::string words;
    for (const pugi::xml_node& part : element.children()) {
      if (isElement(part)) return unexpected(part);
      words += part.value();
    }
    if (key) {
      others.erase(*key);
      table.insert_or_assign(*std::exchange(key, std::nullopt), std::move(words));
    } else {
      key = std::move(words);
    }
  }
  if (key) {
    return malformedStringsFile(text, at(root.offset_debug()), "no value for \"" + *key + '"');
  }
  if (others.empty()) return table;
  const auto& [otherKey, offset] = *others.begin();
  return notAStringTable(text, at(offset), "the value of \"" + otherKey + "\" is no text");
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
  return isXML(text) ? readXML(text) : readTextPropertyList(text);
}

}  // namespace

Result<StringTable> readStringsFile(std::string_view bytes) {
  if (bytes.empty()) return malformedStringsFile(bytes, 0, "the file is empty");
  if (bytes.starts_with("bplist")) {
    return malformedStringsFile(bytes, 0, "a binary property list; convert it to text");
  }
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
    if (bytes.size() % 2 != 0) return malformedStringsFile({}, 0, "UTF-16 of an odd length");
    const auto size = static_cast<std::int32_t>(bytes.size());
    std::string text;
    return read(icu::UnicodeString(bytes.data(), size, "UTF-16").toUTF8String(text));
  }
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
  return read(bytes);
}

Error malformedStringsFile(std::string_view text, std::size_t offset, const std::string& what) {
  return error(StringsFileErrorCode::malformed, text, offset, what);
}

Error notAStringTable(std::string_view text, std::size_t offset, const std::string& what) {
  return error(StringsFileErrorCode::notATable, text, offset, what);
}

namespace {

std::shared_ptr<const StringTable> readTable(std::string_view bytes) {
  auto reading = readStringsFile(bytes);
  auto* table = std::get_if<StringTable>(&reading);
  return table == nullptr ? nullptr : std::make_shared<const StringTable>(std::move(*table));
}

}  // namespace

struct StringTables : ParsedFileCache<StringTable> {
  StringTables() : ParsedFileCache(readTable) {}
};

namespace {

/// The entry for `key` in the table at `path` of `bundle`.
std::optional<std::string> entryIn(const Bundle& bundle, const std::string& path,
                                   std::string_view key) {
  const auto file = bundle.data(path);
  const auto entries = file ? Runtime::the<StringTables>().read(*file) : nullptr;
  if (!entries) return std::nullopt;
  const auto entry = entries->find(key);
  return entry == entries->end() ? std::nullopt : std::optional(entry->second);
}

}  // namespace

std::string localizedString(const Bundle& bundle, std::string_view key) {
  return entryIn(bundle, "Localizable.strings", key).value_or(std::string(key));
}

std::optional<std::string> localizedEntry(const Bundle& bundle, std::string_view key,
                                          std::string_view language) {
  const std::string_view withoutRegion = language.substr(0, language.find_first_of("-_"));
  for (const std::string_view folder : {language, withoutRegion, std::string_view("en")}) {
    if (folder.empty()) continue;
    if (auto entry = entryIn(bundle, std::string(folder) + ".lproj/Localizable.strings", key)) {
      return entry;
    }
  }
  return entryIn(bundle, "Localizable.strings", key);
}

std::string localizedString(std::string_view key, const std::vector<std::string>& arguments,
                            std::string_view language) {
  std::optional<std::string> entry;
  if (Bundle::hasMain()) entry = localizedEntry(*Bundle::main(), key, language);
  return formatted(entry ? *entry : key, {arguments.begin(), arguments.end()});
}

std::string spokenName(const Bundle& bundle, const std::string& image, std::string_view language) {
  const auto name = localizedEntry(bundle, image, language);
  return name ? *name : localizedString(image, {}, language);
}

}  // namespace quorix::foundation
