#include "platform/foundation/ExactInteger.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace quorix::foundation {
namespace {

/// More places than any 64-bit integer has, fewer than overflow the arithmetic below.
constexpr std::int64_t kFarAway = std::int64_t{1} << 40;

std::int64_t exponentOf(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  std::int64_t exponent = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), exponent);
  if (read.ec == std::errc::result_out_of_range) return text[0] == '-' ? -kFarAway : kFarAway;
  return std::clamp(exponent, -kFarAway, kFarAway);
}

}  // namespace

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
  constexpr std::int64_t kMostDigits = std::numeric_limits<std::int64_t>::digits10 + 1;
  if (scale < 0 || static_cast<std::int64_t>(digits.size()) + scale > kMostDigits) {
    return std::nullopt;
  }
  digits.append(static_cast<std::size_t>(scale), '0');
  if (negative) digits.insert(0, 1, '-');
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), plain);
  if (read.ec != std::errc{}) return std::nullopt;
  return plain;
}

}  // namespace quorix::foundation
