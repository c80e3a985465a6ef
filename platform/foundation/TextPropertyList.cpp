#include "platform/foundation/StringsFile.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/foundation/PropertyListScanner.h"

namespace quorix::foundation {
namespace {

class TextReader {
 public:
  explicit TextReader(std::string_view text) : text_(text), scanner_(text) {}

  Result<StringTable> read() {
    if (scanner_.atEnd()) return StringTable();  // only comments
    if (scanner_.take('{')) {
      if (readEntries('}') && !scanner_.atEnd()) scanner_.fail("the table ends before this");
    } else if (isContainer() || isLoneText()) {
      const std::size_t start = scanner_.offset();
      if (skipValue() && scanner_.atEnd()) {
        return notAStringTable(text_, start, "no table but a lone value");
      }
      scanner_.fail("the value ends before this");
    } else {
      readEntries(std::nullopt);
    }
    if (scanner_.failure()) return *scanner_.failure();
    if (others_.empty()) return std::move(table_);
    const auto& [key, offset] = *others_.begin();
    return notAStringTable(text_, offset, "the value of \"" + key + "\" is no text");
  }

 private:
  /// What follows inside a list.
  enum class Next : std::uint8_t { value, end, failure };

  bool isContainer() {
    return scanner_.isNext('(') || scanner_.isNext('{') || scanner_.isNext('<');
  }

  bool isLoneText() const {
    PropertyListScanner ahead = scanner_;
    return ahead.readText() && ahead.atEnd();
  }

  /// Reads entries up to `end`, or up to the end of the text if it is absent. Without `end`, a
  /// second ';' after an entry ends the table and the rest is ignored, as phones do.
  bool readEntries(std::optional<char> end) {
    for (bool first = true; !(end ? scanner_.take(*end) : scanner_.atEnd()); first = false) {
      if (!end && !first && scanner_.isNext(';')) return true;
      const auto key = scanner_.readText();
      if (!key) return false;
      if (scanner_.take(';')) {
        keep(*key, *key);
        continue;
      }
      if (!scanner_.take('=')) {
        return scanner_.fail("'=' or ';' is expected behind the key \"" + *key + '"');
      }
      if (isContainer()) {
        table_.erase(*key);
        others_.insert_or_assign(*key, scanner_.offset());
        if (!skipValue()) return false;
      } else {
        auto text = scanner_.readText();
        if (!text) return false;
        keep(*key, *std::move(text));
      }
      if (!scanner_.take(';')) {
        return scanner_.fail("';' is expected behind the text for \"" + *key + '"');
      }
    }
    return true;
  }

  void keep(const std::string& key, std::string text) {
    others_.erase(key);
    table_.insert_or_assign(key, std::move(text));
  }

  /// Moves past a value of any kind, with the values inside it.
  bool skipValue() {
    std::vector<char> open;
    for (;;) {
      Next next = Next::end;
      if (scanner_.take('(')) {
        open.push_back('(');
        next = nextElement();
      } else if (scanner_.take('{')) {
        open.push_back('{');
        next = nextEntry();
      } else {
        if (!(scanner_.isNext('<') ? scanner_.skipData() : scanner_.readText().has_value())) {
          return false;
        }
        if (open.empty()) return true;
        next = behindValue(open.back());
      }
      while (next == Next::end) {
        open.pop_back();
        if (open.empty()) return true;
        next = behindValue(open.back());
      }
      if (next == Next::failure) return false;
    }
  }

  Next failed(const std::string& what) {
    scanner_.fail(what);
    return Next::failure;
  }

  Next nextElement() { return scanner_.take(')') ? Next::end : Next::value; }

  Next nextEntry() {
    while (!scanner_.take('}')) {
      if (!scanner_.readText()) return Next::failure;
      if (scanner_.take('=')) return Next::value;
      if (!scanner_.take(';')) return failed("'=' or ';' is expected");
    }
    return Next::end;
  }

  Next behindValue(char container) {
    if (container == '{') return scanner_.take(';') ? nextEntry() : failed("';' is expected");
    if (scanner_.take(',')) return nextElement();
    return scanner_.take(')') ? Next::end : failed("',' or ')' is expected");
  }

  std::string_view text_;
  PropertyListScanner scanner_;
  StringTable table_;
  std::map<std::string, std::size_t> others_;  // keys whose values are no texts, and their offsets
};

}  // namespace

Result<StringTable> readTextPropertyList(std::string_view text) { return TextReader(text).read(); }

}  // namespace quorix::foundation
