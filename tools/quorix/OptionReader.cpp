#include "tools/quorix/OptionReader.h"

#include <charconv>
#include <utility>

namespace quorix::tool {
namespace {

/// The number that the whole of `text` spells; absent for any other text.
template <class Number>
std::optional<Number> parse(std::string_view text, auto... base) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number, base...);
  if (error != std::errc() || rest != end) return std::nullopt;
  return number;
}

std::string shortest(double number) {
  char digits[32];
  return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

std::string wants(std::string_view option, std::string_view what, std::string_view got) {
  return std::string(option) + " wants " + std::string(what) + ", not \"" + std::string(got) + '"';
}

}  // namespace

void OptionReader::fail(std::string message) {
  if (!failure_) failure_ = Failure::usage(std::move(message));
}

std::string OptionReader::text(std::string_view option, std::string_view fallback) const {
  return arguments_.value(option).value_or(std::string(fallback));
}

double OptionReader::number(std::string_view option, double fallback, Range range) {
  return optionalNumber(option, range).value_or(fallback);
}

std::optional<double> OptionReader::optionalNumber(std::string_view option, Range range) {
  const auto given = arguments_.value(option);
  if (!given) return std::nullopt;
  const auto number = parse<double>(*given);
  // This form of the comparison also refuses NaN.
  const bool inside = number && *number >= range.least && *number <= range.most;
  if (inside) return number;
  const std::string what = "a number from " + shortest(range.least) + " to " + shortest(range.most);
  fail(wants(option, what, *given));
  return std::nullopt;
}

std::int64_t OptionReader::integer(std::string_view option, std::int64_t fallback) {
  const auto given = arguments_.value(option);
  if (!given) return fallback;
  const auto number = parse<std::int64_t>(*given);
  if (!number) fail(wants(option, "a whole number of 64 bits", *given));
  return number.value_or(fallback);
}

std::optional<graphics::RGBA> OptionReader::color(std::string_view option) {
  const auto given = arguments_.value(option);
  if (!given) return std::nullopt;
  const auto digits =
      parse<std::uint32_t>(std::string_view(*given).substr(given->empty() ? 0 : 1), 16);
  if (digits && given->size() == 7 && given->front() == '#') {
    const auto byte = [&](int shift) { return static_cast<std::uint8_t>(*digits >> shift); };
    return graphics::RGBA{byte(16), byte(8), byte(0), 255};
  }
  fail(wants(option, "a color such as #FAF7F0", *given));
  return std::nullopt;
}

}  // namespace quorix::tool
