#include "platform/foundation/StringFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>

#include "platform/foundation/FormatConversion.h"
#include "platform/foundation/Numbers.h"

namespace quorix::foundation {
namespace {

using Kind = FormatConversion::Kind;
using Arguments = std::vector<FormatArgument>;

constexpr int defaultPrecision = 6;

/// The digits of `magnitude`, which is finite and not negative. Without a precision, the shortest
/// exact digits.
std::string digits(double magnitude, std::chars_format form, std::optional<int> precision) {
  // The longest double has 309 digits before its point.
  std::array<char, 320 + FormatConversion::largestSize> buffer;
  char* const end = buffer.data() + buffer.size();
  const auto written = precision ? std::to_chars(buffer.data(), end, magnitude, form, *precision)
                                 : std::to_chars(buffer.data(), end, magnitude, form);
  return written.ec == std::errc() ? std::string(buffer.data(), written.ptr) : std::string();
}

/// Adds the point that "#" requires even without digits after it.
void addPoint(std::string& text, char exponentLetter) {
  if (text.find('.') != text.npos) return;
  text.insert(std::min(text.find(exponentLetter), text.size()), 1, '.');
}

/// "%#g" keeps the zeros that "%g" drops.
std::string generalWithZeros(double magnitude, int precision) {
  const int significant = std::max(precision, 1);
  std::string scientific = digits(magnitude, std::chars_format::scientific, significant - 1);
  const std::size_t mark = scientific.find('e') + 1;
  int exponent = 0;
  std::from_chars(scientific.data() + mark + (scientific[mark] == '+' ? 1 : 0),
                  scientific.data() + scientific.size(), exponent);
  if (exponent < -4 || exponent >= significant) return scientific;
  return digits(magnitude, std::chars_format::fixed, significant - 1 - exponent);
}

std::string magnitudeText(double magnitude, char form, bool alternate,
                          std::optional<int> precision) {
  const int places = precision.value_or(defaultPrecision);
  std::string text;
  switch (form) {
    case 'f':
      text = digits(magnitude, std::chars_format::fixed, places);
      break;
    case 'e':
      text = digits(magnitude, std::chars_format::scientific, places);
      break;
    case 'g':
      text = alternate ? generalWithZeros(magnitude, places)
                       : digits(magnitude, std::chars_format::general, places);
      break;
    default:
      text = "0x" + digits(magnitude, std::chars_format::hex, precision);
      break;
  }
  if (alternate) addPoint(text, form == 'a' ? 'p' : 'e');
  return text;
}

std::string_view signOf(bool negative, const FormatConversion& conversion) {
  if (negative) return "-";
  if (conversion.plus) return "+";
  return conversion.blank ? " " : "";
}

void makeUpper(std::string& text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
}

std::string floating(double number, const FormatConversion& conversion,
                     std::optional<int> precision) {
  if (std::isnan(number)) return conversion.letter >= 'a' ? "nan" : "NAN";
  std::string text(signOf(std::signbit(number), conversion));
  const bool upper = conversion.letter < 'a';
  const char form = upper ? static_cast<char>(conversion.letter - 'A' + 'a') : conversion.letter;
  text += std::isinf(number)
              ? "inf"
              : magnitudeText(std::fabs(number), form, conversion.alternate, precision);
  if (upper) makeUpper(text);
  return text;
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

std::string integer(double number, const FormatConversion& conversion,
                    std::optional<int> precision) {
  const bool isSigned = std::string_view("dDi").find(conversion.letter) != std::string_view::npos;
  const auto value = wholePart<std::int64_t>(number);
  const bool negative = isSigned && value < 0;
  // Like printf, an unsigned conversion shows the bits of a negative integer.
  auto magnitude = static_cast<std::uint64_t>(value);
  if (negative) magnitude = 0 - magnitude;
  if (!isSigned && number > 0) magnitude = wholePart<std::uint64_t>(number);

  const bool octal = conversion.letter == 'o' || conversion.letter == 'O';
  const bool hex = conversion.letter == 'x' || conversion.letter == 'X';
  std::array<char, 24> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                     octal ? 8
                                     : hex ? 16
                                           : 10);
  std::string text(buffer.data(), written.ptr);
  if (magnitude == 0 && precision == 0) text.clear();
  const auto least = static_cast<std::size_t>(precision.value_or(1));
  if (text.size() < least) text.insert(0, least - text.size(), '0');
  if (conversion.alternate && octal && !text.starts_with('0')) text.insert(0, 1, '0');
  if (conversion.alternate && hex && magnitude != 0) text.insert(0, "0x");
  if (conversion.letter == 'X') makeUpper(text);
  if (isSigned) text.insert(0, signOf(negative, conversion));
  return text;
}

/// `number` as printf writes it for `conversion`, without its width. `precision` replaces the
/// conversion's own; absent, it is the default. Numbers beyond 64 bits show as the nearest integer.
std::string formattedNumber(double number, const FormatConversion& conversion,
                            std::optional<int> precision) {
  return conversion.kind == FormatConversion::Kind::number ? floating(number, conversion, precision)
                                                           : integer(number, conversion, precision);
}

/// The index in `text` at which zeros are inserted to fill a width: after its sign and "0x".
std::size_t endOfSign(std::string_view text) {
  std::size_t end = text.find_first_not_of("+- ") == 1 ? 1 : 0;
  const std::string_view rest = text.substr(end);
  if (rest.starts_with("0x") || rest.starts_with("0X")) end += 2;
  return end;
}

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

void fill(std::string& text, int width, const FormatConversion& conversion, bool zeros) {
  const bool left = conversion.left || width < 0;
  const auto wanted = static_cast<std::size_t>(std::abs(width));
  if (text.size() >= wanted) return;
  const std::size_t missing = wanted - text.size();
  if (left) {
    text.append(missing, ' ');
  } else if (zeros) {
    text.insert(endOfSign(text), missing, '0');
  } else {
    text.insert(0, missing, ' ');
  }
}

std::string numberText(double number, const FormatConversion& conversion,
                       const Arguments& arguments) {
  auto precision = sizeOf(conversion.precision, arguments);
  if (precision && *precision < 0) precision.reset();
  std::string text = formattedNumber(number, conversion, precision);
  const bool takesZeros =
      conversion.kind == Kind::number ? std::isfinite(number) : !precision.has_value();
  fill(text, sizeOf(conversion.width, arguments).value_or(0), conversion,
       conversion.zeros && takesZeros);
  return text;
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

}  // namespace quorix::foundation
