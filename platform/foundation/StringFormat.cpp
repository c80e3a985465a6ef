#include "platform/foundation/StringFormat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

#include "platform/foundation/Numbers.h"

namespace quorix::foundation {
namespace {

using Kind = FormatConversion::Kind;
using Arguments = std::vector<FormatArgument>;

bool contains(std::string_view letters, char letter) {
  return letters.find(letter) != letters.npos;
}

Kind kindOf(char letter) {
  if (contains("fFeEgGaA", letter)) return Kind::number;
  if (contains("diDuUoOxX", letter)) return Kind::integer;
  if (contains("@sS", letter)) return Kind::text;
  if (contains("cCp", letter)) return Kind::character;
  if (letter == 'n') return Kind::none;
  return letter == '%' ? Kind::percent : Kind::unknown;
}

/// Reads the conversions of a format one after the other and counts the arguments that they take.
class FormatReader {
 public:
  explicit FormatReader(std::string_view format) : format_(format) {}

  /// The next conversion, "%%" and unknown ones included; absent at the end.
  std::optional<FormatConversion> next() {
    const std::size_t start = format_.find('%', at_);
    if (start == format_.npos) return std::nullopt;
    at_ = start + 1;
    FormatConversion conversion;
    std::optional<std::size_t> position;
    if (!format_.substr(at_).starts_with('@')) {  // which is the usual case
      position = readPosition();
      conversion.flags = takeAll("-+ #0'");
      conversion.width = readSize();
      if (take('.')) {
        conversion.precision = readSize();
        if (!conversion.precision.argument && !conversion.precision.value) {
          conversion.precision.value = 0;
        }
      }
      takeAll("hlqLzjt");
    }
    if (at_ < format_.size()) conversion.letter = format_[at_++];
    // A letter beyond ASCII is not a conversion. Skip all its bytes.
    const auto bits = [](char byte) { return static_cast<unsigned char>(byte) & 0xC0; };
    if (bits(conversion.letter) >= 0x80) {
      while (at_ < format_.size() && bits(format_[at_]) == 0x80) ++at_;
    }
    conversion.kind = kindOf(conversion.letter);
    conversion.source = format_.substr(start, at_ - start);
    if (conversion.takesArgument()) conversion.argument = position ? *position : next_++;
    return conversion;
  }

 private:
  bool take(char c) {
    if (at_ == format_.size() || format_[at_] != c) return false;
    ++at_;
    return true;
  }

  std::string_view takeAll(std::string_view letters) {
    const std::size_t end = std::min(format_.find_first_not_of(letters, at_), format_.size());
    const std::size_t start = std::exchange(at_, end);
    return format_.substr(start, end - start);
  }

  std::optional<int> readNumber() {
    const std::string_view digits = takeAll("0123456789");
    if (digits.empty()) return std::nullopt;
    int number = 0;
    for (const char digit : digits) {
      number = std::min(number * 10 + (digit - '0'), FormatConversion::largestSize);
    }
    return number;
  }

  /// The index of the argument that "2$" names, counted from 0. Without a position, reads nothing
  /// and is absent.
  std::optional<std::size_t> readPosition() {
    const std::size_t start = at_;
    const auto number = readNumber();
    if (number && *number > 0 && take('$')) return static_cast<std::size_t>(*number - 1);
    at_ = start;
    return std::nullopt;
  }

  FormatConversion::Size readSize() {
    if (!take('*')) return {readNumber(), std::nullopt};
    const auto position = readPosition();
    return {std::nullopt, position ? *position : next_++};
  }

  std::string_view format_;
  std::size_t at_ = 0;
  std::size_t next_ = 0;
};

/// The value of a width or precision. Only an argument can make it negative. Absent if there is
/// none, or if its argument is not a number.
std::optional<int> sizeOf(const FormatConversion::Size& size, const Arguments& arguments) {
  if (!size.argument) return size.value;
  if (*size.argument >= arguments.size()) return std::nullopt;
  const auto* number = std::get_if<double>(&arguments[*size.argument]);
  if (number == nullptr || std::isnan(*number)) return std::nullopt;
  const double largest = FormatConversion::largestSize;
  return static_cast<int>(std::clamp(*number, -largest, largest));
}

/// `number` truncated toward 0 and clamped to the 64-bit range.
template <class Integer>
Integer wholePart(double number) {
  using Limits = std::numeric_limits<Integer>;
  if (std::isnan(number)) return 0;
  if (number >= std::ldexp(1.0, Limits::digits)) return Limits::max();
  if (number <= static_cast<double>(Limits::min())) return Limits::min();
  return static_cast<Integer>(number);
}

/// Replaces the decimal separator of the process's locale.
void writePoint(std::string& number) {
  constexpr std::string_view others = "0123456789abcdefinpxABCDEFINPX+- ";
  const std::size_t first = number.find_first_not_of(others);
  if (first == number.npos) return;
  number.replace(first, number.find_last_not_of(others) - first + 1, ".");
}

std::string numberText(double number, const FormatConversion& conversion,
                       const Arguments& arguments) {
  const bool isNaN = conversion.kind == Kind::number && std::isnan(number);  // has no sign
  std::string format = "%";
  for (const char flag : conversion.flags) {
    if (flag != '\'' && !(isNaN && contains("+ ", flag))) format += flag;
  }
  format += "*.*";
  // A negative width means the flag "-", a negative precision none.
  const int width = sizeOf(conversion.width, arguments).value_or(0);
  const int precision = sizeOf(conversion.precision, arguments).value_or(-1);
  // The longest double has 309 digits before its point.
  std::array<char, 320 + FormatConversion::largestSize> text;
  const auto print = [&](auto value) {
    std::snprintf(text.data(), text.size(), format.c_str(), width, precision, value);
    return std::string(text.data());
  };
  if (conversion.kind == Kind::number) {
    format += conversion.letter;
    std::string shown = print(isNaN ? std::fabs(number) : number);
    writePoint(shown);
    return shown;
  }
  const bool isCapital = contains("DUO", conversion.letter);
  const char letter = isCapital ? static_cast<char>(conversion.letter + 32) : conversion.letter;
  format.append("ll") += letter;
  // An unsigned conversion shows the bits of a negative integer.
  const auto whole = wholePart<long long>(number);
  const bool isUnsigned = !contains("di", letter) && number > 0;
  return isUnsigned ? print(wholePart<unsigned long long>(number)) : print(whole);
}

void append(std::string& to, const FormatConversion& conversion, const Arguments& arguments) {
  if (conversion.kind == Kind::percent) {
    to += '%';
    return;
  }
  if (!conversion.takesArgument() || conversion.kind == Kind::none) return;
  if (conversion.argument >= arguments.size()) {
    to += "(null)";
    return;
  }
  const FormatArgument& argument = arguments[conversion.argument];
  if (const auto* text = std::get_if<std::string>(&argument)) {
    to += *text;
    return;
  }
  const double number = std::get<double>(argument);
  const bool fits = conversion.kind == Kind::number || conversion.kind == Kind::integer;
  to += fits ? numberText(number, conversion, arguments) : shortestNumber(number);
}

}  // namespace

std::string formatted(std::string_view format, const std::vector<FormatArgument>& arguments) {
  std::size_t length = format.size();
  for (const FormatArgument& argument : arguments) {
    if (const auto* words = std::get_if<std::string>(&argument)) length += words->size();
  }
  std::string text;
  text.reserve(length);
  std::size_t at = 0;
  FormatReader reader(format);
  while (const auto conversion = reader.next()) {
    const auto start = static_cast<std::size_t>(conversion->source.data() - format.data());
    text.append(format, at, start - at);
    append(text, *conversion, arguments);
    at = start + conversion->source.size();
  }
  text.append(format, at);
  return text;
}

std::vector<FormatConversion> conversions(std::string_view format) {
  std::vector<FormatConversion> found;
  FormatReader reader(format);
  while (auto conversion = reader.next()) found.push_back(*conversion);
  return found;
}

}  // namespace quorix::foundation
