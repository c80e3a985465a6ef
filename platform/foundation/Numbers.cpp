#include "platform/foundation/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace quorix::foundation {
namespace {

/// More digits than any 64-bit integer has, and too few to overflow the arithmetic below.
constexpr std::int64_t farAway = std::int64_t{1} << 40;

std::int64_t exponentOf(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  std::int64_t exponent = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
  if (read.ec == std::errc::result_out_of_range) return text[0] == '-' ? -farAway : farAway;
  return std::clamp(exponent, -farAway, farAway);
}

/// Whether `text` is a well-formed number with an exponent.
bool hasExponent(std::string_view text) {
  const auto skipDigits = [&] {
    std::size_t count = 0;
    while (count < text.size() && text[count] >= '0' && text[count] <= '9') ++count;
    text.remove_prefix(count);
    return count;
  };
  if (text.starts_with('-')) text.remove_prefix(1);
  const bool leadingZero = text.starts_with('0');
  const std::size_t whole = skipDigits();
  if (whole == 0 || (leadingZero && whole > 1)) return false;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    if (skipDigits() == 0) return false;
  }
  if (!text.starts_with('e') && !text.starts_with('E')) return false;
  text.remove_prefix(1);
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  return skipDigits() > 0 && text.empty();
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  const bool isWhole = read.ec == std::errc() && read.ptr == end;
  return isWhole && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<std::int64_t> exactInteger(std::string_view number) {
  std::int64_t plain = 0;
  const char* end = number.data() + number.size();
  if (const auto read = std::from_chars(number.data(), end, plain);
      read.ec == std::errc{} && read.ptr == end) {
    return plain;
  }

  // Take the number apart into a sign, its digits without the dot, and a power of ten.
  const std::size_t e = number.find_first_of("eE");
  std::int64_t scale = e == std::string_view::npos ? 0 : exponentOf(number.substr(e + 1));
  std::string digits(number.substr(0, e));
  if (const std::size_t dot = digits.find('.'); dot != std::string::npos) {
    scale -= static_cast<std::int64_t>(digits.size() - dot - 1);
    digits.erase(dot, 1);
  }
  const bool negative = digits.starts_with('-');
  digits.erase(0, std::min(digits.find_first_not_of("-0"), digits.size()));
  const std::size_t significant = digits.find_last_not_of('0') + 1;
  scale += static_cast<std::int64_t>(digits.size() - significant);
  digits.resize(significant);

  if (digits.empty()) return 0;
  constexpr std::int64_t mostDigits = std::numeric_limits<std::int64_t>::digits10 + 1;
  if (scale < 0 || static_cast<std::int64_t>(digits.size()) + scale > mostDigits) {
    return std::nullopt;
  }
  digits.append(static_cast<std::size_t>(scale), '0');
  if (negative) digits.insert(0, 1, '-');
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), plain);
  if (read.ec != std::errc{}) return std::nullopt;
  return plain;
}

std::optional<double> numberWithExponent(std::string_view text) {
  if (!hasExponent(text)) return std::nullopt;
  const std::size_t mark = text.find_first_of("eE");
  const bool isZero = text.substr(0, mark).find_first_of("123456789") == std::string_view::npos;
  double number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure == std::errc{}) return number;
  const bool tiny = text[mark + 1] == '-';
  if (!isZero && !tiny) return std::nullopt;
  return text.starts_with('-') ? -0.0 : 0.0;
}

std::string shortestNumber(double number) {
  if (std::isnan(number)) return "nan";
  std::array<char, 32> buffer;
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr};
}

}  // namespace quorix::foundation
