#include "platform/foundation/PropertyListScanner.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/EscapedText.h"
#include "platform/foundation/StringsFileError.h"

namespace quorix::foundation {
namespace {

constexpr std::string_view kLineSeparator = "\u2028";
constexpr std::string_view kParagraphSeparator = "\u2029";

bool isUnquoted(char c) {
  const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  return isLetter || (c >= '0' && c <= '9') ||
         std::string_view("_$/:.-").find(c) != std::string_view::npos;
}

bool isHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// The whole character at `at`, for a message.
std::string_view characterAt(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
  return text.substr(at, end - at);
}

}  // namespace

std::size_t PropertyListScanner::blankLength() const {
  const std::string_view rest = text_.substr(at_);
  if (rest.empty()) return 0;
  if (rest.front() == ' ' || (rest.front() >= '\t' && rest.front() <= '\r')) return 1;
  const bool separates = rest.starts_with(kLineSeparator) || rest.starts_with(kParagraphSeparator);
  return separates ? kLineSeparator.size() : 0;
}

bool PropertyListScanner::skipComment() {
  const std::string_view rest = text_.substr(at_);
  if (rest.starts_with("/*")) {
    const std::size_t end = rest.find("*/", 2);
    at_ = end == rest.npos ? text_.size() : at_ + end + 2;
    return true;
  }
  if (!rest.starts_with("//")) return false;
  const std::size_t end = std::min({rest.find_first_of("\n\r"), rest.find(kLineSeparator),
                                    rest.find(kParagraphSeparator), rest.size()});
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
