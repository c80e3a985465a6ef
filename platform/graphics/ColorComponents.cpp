#include "platform/graphics/ColorComponents.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/foundation/Decimal.h"

namespace quorix::graphics {
namespace {

/// A component as a fraction of 1.
std::optional<double> component(std::string_view text) {
  if (text.find('.') != text.npos) {
    const auto fraction = foundation::parseDecimal(text);
    return fraction ? std::optional(std::clamp(*fraction, 0.0, 1.0)) : std::nullopt;
  }
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  unsigned value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value, hexadecimal ? 16 : 10);
  if (error != std::errc() || stop != end || value > 255) return std::nullopt;
  return value / 255.0;
}

std::optional<double> alphaComponent(std::string_view text) {
  if (text.empty() || text == "1") return 1;
  return component(text);
}

std::uint8_t channel(double fraction) {
  return static_cast<std::uint8_t>(std::lround(std::clamp(fraction, 0.0, 1.0) * 255));
}

double linear(double encoded) {
  return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

double encoded(double linear) {
  const double value = std::clamp(linear, 0.0, 1.0);
  return value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
}

}  // namespace

std::optional<RGBA> makeColor(ColorSpace space, std::string_view red, std::string_view green,
                              std::string_view blue, std::string_view alpha) {
  auto r = component(red);
  auto g = component(green);
  auto b = component(blue);
  const auto a = alphaComponent(alpha);
  if (!r || !g || !b || !a) return std::nullopt;
  if (space == ColorSpace::displayP3) {
    // Both spaces have the same white and the same curve, so one matrix on linear light does it.
    const double lr = linear(*r), lg = linear(*g), lb = linear(*b);
    r = encoded(1.2249402 * lr - 0.2249402 * lg);
    g = encoded(-0.0420569 * lr + 1.0420569 * lg);
    b = encoded(-0.0196376 * lr - 0.0786361 * lg + 1.0982736 * lb);
  }
  return RGBA{channel(*r), channel(*g), channel(*b), channel(*a)};
}

}  // namespace quorix::graphics
