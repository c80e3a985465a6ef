#include "platform/foundation/PropertyListScanner.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/foundation/Numbers.h"
#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {
namespace {

constexpr std::string_view lineSeparator = "\u2028";
constexpr std::string_view paragraphSeparator = "\u2029";

constexpr std::string_view lineEndStarts = "\n\r\xE2";  // the last one starts the separators

bool startsWithSeparator(std::string_view text) {
  return text.starts_with(lineSeparator) || text.starts_with(paragraphSeparator);
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

constexpr char32_t replacement = 0xFFFD;

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

void appendUTF8(std::string& text, char32_t codePoint) {
  std::array<char, U8_MAX_LENGTH> bytes;
  std::size_t size = 0;
  U8_APPEND_UNSAFE(bytes.data(), size, codePoint);
  text.append(bytes.data(), size);
}

struct Number {
  unsigned value = 0;
  std::size_t digits = 0;
};

Number readNumber(std::string_view text, std::size_t mostDigits, int base) {
  text = text.substr(0, mostDigits);
  Number number;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number.value, base);
  number.digits = static_cast<std::size_t>(read.ptr - text.data());
  return number;
}

char controlCharacter(char letter) {
  constexpr std::string_view letters = "abfnrtv", controls = "\a\b\f\n\r\t\v";
  const std::size_t index = letters.find(letter);
  return index == letters.npos ? '\0' : controls[index];
}

/// A text that is built from plain parts and the escapes between them.
class EscapedText {
 public:
  void append(std::string_view plain);

  /// Appends the character of the escape at the start of `rest`, which is not empty and begins
  /// after the backslash. Returns the bytes of the escape. `\n \t \r \a \b \f \v` are control
  /// characters. `\Uxxxx` is a UTF-16 unit in up to four hexadecimal digits; two units make a pair,
  /// half of one becomes U+FFFD. `\ooo` is a NeXTSTEP character in up to three octal digits. Before
  /// any other character, the backslash is dropped.
  std::size_t appendEscape(std::string_view rest);

  std::string take() &&;

 private:
  void appendUnit(char16_t unit);
  void flush();

  std::string text_;
  char16_t high_ = 0;  // the first unit of a pair, until the second follows
};

void EscapedText::append(std::string_view plain) {
  if (plain.empty()) return;
  flush();
  text_ += plain;
}

std::size_t EscapedText::appendEscape(std::string_view rest) {
  const char letter = rest.front();
  if (letter == 'U') {
    const Number unit = readNumber(rest.substr(1), 4, 16);
    if (unit.digits > 0) appendUnit(static_cast<char16_t>(unit.value));
    return 1 + unit.digits;
  }
  flush();
  if (const Number octal = readNumber(rest, 3, 8); octal.digits > 0) {
    const unsigned byte = octal.value & 0xFF;
    appendUTF8(text_, byte < 0x80 ? byte : nextStep[byte - 0x80]);
    return octal.digits;
  }
  const char control = controlCharacter(letter);
  text_ += control == '\0' ? letter : control;
  return 1;
}

void EscapedText::appendUnit(char16_t unit) {
  if (high_ != 0 && U16_IS_TRAIL(unit)) {
    appendUTF8(text_, static_cast<char32_t>(U16_GET_SUPPLEMENTARY(high_, unit)));
    high_ = 0;
    return;
  }
  flush();
  if (U16_IS_LEAD(unit)) {
    high_ = unit;
  } else {
    appendUTF8(text_, U16_IS_TRAIL(unit) ? replacement : unit);
  }
}

void EscapedText::flush() {
  if (high_ != 0) appendUTF8(text_, replacement);
  high_ = 0;
}

std::string EscapedText::take() && {
  flush();
  return std::move(text_);
}

}  // namespace

std::size_t PropertyListScanner::blankLength() const {
  const std::string_view rest = text_.substr(at_);
  if (rest.empty()) return 0;
  if (rest.front() == ' ' || (rest.front() >= '\t' && rest.front() <= '\r')) return 1;
  return startsWithSeparator(rest) ? lineSeparator.size() : 0;
}

bool PropertyListScanner::skipComment() {
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

void PropertyListScanner::skipBlanks() {
  for (;;) {
    if (const std::size_t length = blankLength()) {
      at_ += length;
    } else if (!skipComment()) {
      return;
    }
  }
}

bool PropertyListScanner::atEnd() {
  skipBlanks();
  return at_ == text_.size();
}

bool PropertyListScanner::isNext(char mark) { return !atEnd() && text_[at_] == mark; }

bool PropertyListScanner::take(char mark) {
  if (!isNext(mark)) return false;
  ++at_;
  return true;
}

std::size_t PropertyListScanner::offset() {
  skipBlanks();
  return at_;
}

bool PropertyListScanner::failAt(std::size_t offset, const std::string& what) {
  if (!failure_) failure_ = malformedStringsFile(text_, offset, what);
  return false;
}

bool PropertyListScanner::fail(const std::string& what) {
  if (atEnd()) return failAt(at_, what + ", not the end of the file");
  return failAt(at_, what + ", not \"" + std::string(characterAt(text_, at_)) + '"');
}

std::optional<std::string> PropertyListScanner::readText() {
  if (atEnd()) {
    fail("a text is expected");
    return std::nullopt;
  }
  const char first = text_[at_];
  if (first == '"' || first == '\'') {
    ++at_;
    return readQuoted(first);
  }
  const std::size_t start = at_;
  while (at_ < text_.size() && isUnquoted(text_[at_])) ++at_;
  if (at_ > start) return std::string(text_.substr(start, at_ - start));
  fail("a text is expected");
  return std::nullopt;
}

std::optional<std::string> PropertyListScanner::readQuoted(char quote) {
  const std::size_t opened = at_ - 1;
  const char ends[] = {quote, '\\'};
  EscapedText text;
  for (;;) {
    const std::size_t end = text_.find_first_of(ends, at_, sizeof ends);
    if (end == text_.npos) break;
    text.append(text_.substr(at_, end - at_));
    at_ = end + 1;
    if (text_[end] == quote) return std::move(text).take();
    if (at_ == text_.size()) break;
    at_ += text.appendEscape(text_.substr(at_));
  }
  failAt(opened, "a text is not closed: its second quotation mark is missing");
  return std::nullopt;
}

bool PropertyListScanner::skipData() {
  if (!take('<')) return fail("'<' is expected");
  std::size_t digits = 0;
  for (; !atEnd() && isHexDigit(text_[at_]); ++at_) ++digits;
  if (!take('>')) return fail("'>' is expected");
  return digits % 2 == 0 || fail("bytes have two hexadecimal digits each");
}

}  // namespace quorix::foundation
