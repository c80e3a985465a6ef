#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <optional>
#include <utility>

#include "platform/foundation/StringTable.h"

namespace quorix::foundation {
namespace {

constexpr std::string_view lineEndStarts = "\n\r\xE2";  // the last one starts the separators

/// Whether `text` starts with the line separator or the paragraph separator, of three bytes each.
bool startsWithSeparator(std::string_view text) {
  return text.starts_with("\u2028") || text.starts_with("\u2029");
}

bool endsLine(std::string_view text) {
  return text.starts_with('\n') || text.starts_with('\r') || startsWithSeparator(text);
}

bool isUnquoted(char c) {
  const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  return isLetter || (c >= '0' && c <= '9') ||
         std::string_view("_$/:.-").find(c) != std::string_view::npos;
}

/// The whole character at `at`, for a message.
std::string_view characterAt(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
  return text.substr(at, end - at);
}

/// The characters of the NeXTSTEP encoding from 0x80 on. Below, the encoding is ASCII.
constexpr std::array<char16_t, 128> nextStep = {
    0x00A0, 0x00C0, 0x00C1, 0x00C2, 0x00C3, 0x00C4, 0x00C5, 0x00C7, 0x00C8, 0x00C9, 0x00CA, 0x00CB,
    0x00CC, 0x00CD, 0x00CE, 0x00CF, 0x00D0, 0x00D1, 0x00D2, 0x00D3, 0x00D4, 0x00D5, 0x00D6, 0x00D9,
    0x00DA, 0x00DB, 0x00DC, 0x00DD, 0x00DE, 0x00B5, 0x00D7, 0x00F7, 0x00A9, 0x00A1, 0x00A2, 0x00A3,
    0x2044, 0x00A5, 0x0192, 0x00A7, 0x00A4, 0x2019, 0x201C, 0x00AB, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x00AE, 0x2013, 0x2020, 0x2021, 0x00B7, 0x00A6, 0x00B6, 0x2022, 0x201A, 0x201E, 0x201D, 0x00BB,
    0x2026, 0x2030, 0x00AC, 0x00BF, 0x00B9, 0x02CB, 0x00B4, 0x02C6, 0x02DC, 0x00AF, 0x02D8, 0x02D9,
    0x00A8, 0x00B2, 0x02DA, 0x00B8, 0x00B3, 0x02DD, 0x02DB, 0x02C7, 0x2014, 0x00B1, 0x00BC, 0x00BD,
    0x00BE, 0x00E0, 0x00E1, 0x00E2, 0x00E3, 0x00E4, 0x00E5, 0x00E7, 0x00E8, 0x00E9, 0x00EA, 0x00EB,
    0x00EC, 0x00C6, 0x00ED, 0x00AA, 0x00EE, 0x00EF, 0x00F0, 0x00F1, 0x0141, 0x00D8, 0x0152, 0x00BA,
    0x00F2, 0x00F3, 0x00F4, 0x00F5, 0x00F6, 0x00E6, 0x00F9, 0x00FA, 0x00FB, 0x0131, 0x00FC, 0x00FD,
    0x0142, 0x00F8, 0x0153, 0x00DF, 0x00FE, 0x00FF, 0xFFFD, 0xFFFD,
};

/// Reads a string table in the old text form of property lists. Skips blanks and comments before
/// each word: `// ...` and `/* ... */`; a comment without an end reaches to the end of the text.
/// Keeps the first failure.
class TextReader {
 public:
  explicit TextReader(std::string_view text) : text_(text) {}

  Result<StringTable> read() {
    if (isNext('(') || isNext('<') || isLoneText()) {
      const std::size_t start = at_;
      if (skipValue() && atEnd()) {
        return notAStringTable(text_, start, "no table but a lone value");
      }
      fail("the value ends before this");
    } else {
      const bool inBraces = take('{');
      if (readEntries(inBraces) && inBraces && !atEnd()) fail("the table ends before this");
    }
    if (failure_) return *std::move(failure_);
    if (others_.empty()) return std::move(table_);
    const auto& [key, offset] = *others_.begin();
    return notAStringTable(text_, offset, "the value of \"" + key + "\" is no text");
  }

 private:
  bool isLoneText() const {
    TextReader ahead = *this;
    return ahead.readText() && ahead.atEnd();
  }

  /// Without braces, a second ';' after an entry ends the table and the rest is ignored, as phones
  /// do.
  bool readEntries(bool inBraces) {
    for (bool first = true; !(inBraces ? take('}') : atEnd()); first = false) {
      if (!inBraces && !first && isNext(';')) return true;
      const auto key = readText();
      if (!key) return false;
      others_.erase(*key);
      if (isNext(';')) {
        table_.insert_or_assign(*key, *key);
      } else if (!take('=')) {
        return fail("'=' or ';' is expected behind the key \"" + *key + '"');
      } else if (isNext('(') || isNext('{') || isNext('<')) {
        table_.erase(*key);
        others_.emplace(*key, at_);
        if (!skipValue()) return false;
      } else {
        auto text = readText();
        if (!text) return false;
        table_.insert_or_assign(*key, *std::move(text));
      }
      if (!take(';')) return fail("';' is expected behind the text for \"" + *key + '"');
    }
    return true;
  }

  /// Moves past a value of any kind. Nested lists are skipped without recursion.
  bool skipValue() {
    std::string open;  // the closing marks of the lists around the next value
    do {
      bool begins = true;
      if (take('(')) {
        open += ')';
      } else if (take('{')) {
        open += '}';
      } else if (isNext('<') ? skipData() : readText().has_value()) {
        begins = false;
      } else {
        return false;
      }
      for (; !open.empty(); begins = false) {
        const bool inList = open.back() == ')';
        const bool separated = begins || take(inList ? ',' : ';');
        if ((separated || inList) && take(open.back())) {
          open.pop_back();
          continue;
        }
        if (!separated) return fail(inList ? "',' or ')' is expected" : "';' is expected");
        if (inList) break;
        if (!readText()) return false;
        if (take('=')) break;
        if (!isNext(';')) return fail("'=' or ';' is expected");
      }
    } while (!open.empty());
    return true;
  }

  /// Moves past bytes in hexadecimal, `<0f 1a>`.
  bool skipData() {
    take('<');
    std::size_t digits = 0;
    for (; !atEnd() && std::isxdigit(static_cast<unsigned char>(text_[at_])); ++at_) ++digits;
    if (!take('>')) return fail("'>' is expected");
    return digits % 2 == 0 || fail("bytes have two hexadecimal digits each");
  }

  /// The next word, which must be a text: in single or double quotes, or unquoted if it has only
  /// letters, digits and "_$/:.-". Fails otherwise.
  std::optional<std::string> readText() {
    if (isNext('"') || isNext('\'')) return readQuoted(text_[at_]);
    const std::size_t start = at_;
    while (at_ < text_.size() && isUnquoted(text_[at_])) ++at_;
    if (at_ > start) return std::string(text_.substr(start, at_ - start));
    fail("a text is expected");
    return std::nullopt;
  }

  std::optional<std::string> readQuoted(char quote) {
    const std::size_t opened = at_++;
    const char ends[] = {quote, '\\'};
    icu::UnicodeString text;
    for (;;) {
      const std::size_t end = text_.find_first_of(ends, at_, sizeof ends);
      if (end == text_.npos) break;
      const std::string_view plain = text_.substr(at_, end - at_);
      at_ = end + 1;
      if (text_[end] == quote && text.isEmpty()) return std::string(plain);
      text += icu::UnicodeString::fromUTF8({plain.data(), static_cast<std::int32_t>(plain.size())});
      std::string result;
      if (text_[end] == quote) return text.toUTF8String(result);
      if (at_ == text_.size()) break;
      readEscape(text);
    }
    failAt(opened, "a text is not closed: its second quotation mark is missing");
    return std::nullopt;
  }

  /// Appends the character of the escape whose backslash was read. `\n \t \r \a \b \f \v` are
  /// control characters. `\Uxxxx` is a UTF-16 unit in up to four hexadecimal digits; two units make
  /// a pair. `\ooo` is a NeXTSTEP character in up to three octal digits. Before any other
  /// character, the backslash is dropped.
  void readEscape(icu::UnicodeString& text) {
    const char letter = text_[at_];
    if (letter == 'U') {
      ++at_;
      if (const auto unit = readNumber(4, 16)) text += static_cast<char16_t>(*unit);
    } else if (const auto octal = readNumber(3, 8)) {
      const unsigned byte = *octal & 0xFF;
      text += byte < 0x80 ? static_cast<char16_t>(byte) : nextStep[byte - 0x80];
    } else if (const auto index = std::string_view("abfnrtv\"'\\").find(letter);
               index != std::string_view::npos) {
      ++at_;
      text += u"\a\b\f\n\r\t\v\"'\\"[index];
    }
  }

  std::optional<unsigned> readNumber(std::size_t mostDigits, int base) {
    const std::string_view digits = text_.substr(at_, mostDigits);
    unsigned number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    at_ += static_cast<std::size_t>(read.ptr - digits.data());
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
  }

  bool atEnd() {
    while (skipBlank() || skipComment()) {
    }
    return at_ == text_.size();
  }

  bool skipBlank() {
    const std::string_view rest = text_.substr(at_);
    if (rest.empty()) return false;
    const bool isBlank = rest.front() == ' ' || (rest.front() >= '\t' && rest.front() <= '\r');
    if (isBlank || startsWithSeparator(rest)) at_ += isBlank ? 1 : 3;
    return isBlank || startsWithSeparator(rest);
  }

  bool skipComment() {
    const std::string_view rest = text_.substr(at_);
    if (rest.starts_with("/*")) {
      const std::size_t end = rest.find("*/", 2);
      at_ = end == rest.npos ? text_.size() : at_ + end + 2;
      return true;
    }
    if (!rest.starts_with("//")) return false;
    // Searches for all line ends at once. With one search for each kind, a kind that does not occur
    // would make every comment read the whole text.
    std::size_t end = 2;
    do {
      end = std::min(rest.find_first_of(lineEndStarts, end), rest.size());
    } while (end < rest.size() && !endsLine(rest.substr(end)) && ++end);
    at_ += end;
    return true;
  }

  bool isNext(char mark) { return !atEnd() && text_[at_] == mark; }

  /// Moves past `mark` if it is next.
  bool take(char mark) {
    if (!isNext(mark)) return false;
    ++at_;
    return true;
  }

  bool failAt(std::size_t offset, const std::string& what) {
    if (!failure_) failure_ = malformedStringsFile(text_, offset, what);
    return false;
  }

  bool fail(const std::string& what) {
    if (atEnd()) return failAt(at_, what + ", not the end of the file");
    return failAt(at_, what + ", not \"" + std::string(characterAt(text_, at_)) + '"');
  }

  std::string_view text_;
  std::size_t at_ = 0;
  StringTable table_;
  std::map<std::string, std::size_t> others_;  // keys whose values are no texts, and their offsets
  std::optional<Error> failure_;
};

}  // namespace

Result<StringTable> readTextPropertyList(std::string_view text) { return TextReader(text).read(); }

}  // namespace quorix::foundation
