#include "platform/foundation/FormatConversion.h"

#include <algorithm>

namespace quorix::foundation {
namespace {

using Kind = FormatConversion::Kind;

bool isASCII(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
bool continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

Kind kindOf(char letter) {
  const auto isOneOf = [letter](std::string_view letters) {
    return letters.find(letter) != letters.npos;
  };
  if (letter == '\0') return Kind::unknown;
  if (isOneOf("fFeEgGaA")) return Kind::number;
  if (isOneOf("diDuUoOxX")) return Kind::integer;
  if (isOneOf("@sS")) return Kind::text;
  if (isOneOf("cCp")) return Kind::character;
  if (letter == 'n') return Kind::none;
  return letter == '%' ? Kind::percent : Kind::unknown;
}

}  // namespace

std::optional<FormatConversion> FormatReader::next() {
  const std::size_t start = format_.find('%', at_);
  if (start == format_.npos) return std::nullopt;
  at_ = start + 1;
  FormatConversion conversion;
  if (take('@')) {  // the usual case
    conversion.letter = '@';
    conversion.kind = Kind::text;
    conversion.source = format_.substr(start, 2);
    conversion.argument = next_++;
    return conversion;
  }
  const auto position = readPosition();
  readFlags(conversion);
  conversion.width = readSize();
  if (take('.')) {
    conversion.precision = readSize();
    if (!conversion.precision.argument && !conversion.precision.value) {
      conversion.precision.value = 0;
    }
  }
  at_ = std::min(format_.find_first_not_of("hlqLzjt", at_), format_.size());
  if (at_ < format_.size()) conversion.letter = format_[at_++];
  // A letter beyond ASCII is not a conversion. Skip all its bytes.
  while (at_ < format_.size() && !isASCII(conversion.letter) && continues(format_[at_])) ++at_;
  conversion.kind = kindOf(conversion.letter);
  conversion.source = format_.substr(start, at_ - start);
  if (conversion.takesArgument()) conversion.argument = position ? *position : next_++;
  return conversion;
}

bool FormatReader::take(char c) {
  if (at_ == format_.size() || format_[at_] != c) return false;
  ++at_;
  return true;
}

std::optional<int> FormatReader::readNumber() {
  const std::size_t end = std::min(format_.find_first_not_of("0123456789", at_), format_.size());
  if (end == at_) return std::nullopt;
  int number = 0;
  for (; at_ < end; ++at_) {
    number = std::min(number * 10 + (format_[at_] - '0'), FormatConversion::largestSize);
  }
  return number;
}

std::optional<std::size_t> FormatReader::readPosition() {
  const std::size_t start = at_;
  const auto number = readNumber();
  if (number && *number > 0 && take('$')) return static_cast<std::size_t>(*number - 1);
  at_ = start;
  return std::nullopt;
}

void FormatReader::readFlags(FormatConversion& conversion) {
  for (; at_ < format_.size(); ++at_) {
    switch (format_[at_]) {
      case '-':
        conversion.left = true;
        break;
      case '+':
        conversion.plus = true;
        break;
      case ' ':
        conversion.blank = true;
        break;
      case '#':
        conversion.alternate = true;
        break;
      case '0':
        conversion.zeros = true;
        break;
      case '\'':  // groups digits only in some locales; here it has no effect
        break;
      default:
        return;
    }
  }
}

FormatConversion::Size FormatReader::readSize() {
  if (!take('*')) return {readNumber(), std::nullopt};
  const auto position = readPosition();
  return {std::nullopt, position ? *position : next_++};
}

std::vector<FormatConversion> conversions(std::string_view format) {
  std::vector<FormatConversion> found;
  FormatReader reader(format);
  while (auto conversion = reader.next()) found.push_back(*conversion);
  return found;
}

}  // namespace quorix::foundation
