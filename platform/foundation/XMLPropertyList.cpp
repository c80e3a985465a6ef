#include "platform/foundation/XMLPropertyList.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "platform/foundation/StringsFileError.h"

namespace quorix::foundation {
namespace {

constexpr std::string_view kOtherValues[] = {"array", "data", "date",    "dict",
                                             "false", "real", "integer", "true"};

std::optional<pugi::xml_node> firstElement(const pugi::xml_node& parent) {
  for (const pugi::xml_node& child : parent.children()) {
    if (child.type() == pugi::node_element) return child;
  }
  return std::nullopt;
}

/// The text of an element that holds nothing else.
std::optional<std::string> textOf(const pugi::xml_node& element) {
  std::string text;
  for (const pugi::xml_node& child : element.children()) {
    if (child.type() == pugi::node_element) return std::nullopt;
    text += child.value();
  }
  return text;
}

class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

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
    return std::ranges::find(kOtherValues, name(element)) != std::end(kOtherValues);
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

}  // namespace

Result<StringTable> readXMLPropertyList(std::string_view text) { return Reader(text).read(); }

}  // namespace quorix::foundation
