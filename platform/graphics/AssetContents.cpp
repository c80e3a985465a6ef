#include "platform/graphics/AssetContents.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <pugixml.hpp>

#include "platform/foundation/JSON.h"
#include "platform/foundation/Numbers.h"

namespace quorix::graphics {
namespace {

using foundation::JSONValue;

/// The value at the path `keys` of nested objects.
template <class... Keys>
std::optional<JSONValue> at(JSONValue object, Keys... keys) {
  std::optional<JSONValue> value = object;
  ((value = value ? value->member(keys) : std::nullopt), ...);
  return value;
}

template <class... Keys>
std::optional<std::string_view> text(JSONValue object, Keys... keys) {
  const auto value = at(object, keys...);
  return value ? value->string() : std::nullopt;
}

/// The elements of the list `key`; empty without one.
std::vector<JSONValue> list(JSONValue object, std::string_view key) {
  const auto value = object.member(key);
  return value ? value->elements() : std::vector<JSONValue>();
}

/// The appearance that an entry applies to.
struct Target {
  bool dark = false;
  bool any = true;
};

/// Absent for an entry that no surface uses: for one device only, or for high contrast.
std::optional<Target> target(JSONValue entry) {
  const auto idiom = text(entry, "idiom");
  if (idiom && *idiom != "universal") return std::nullopt;
  Target result;
  for (const JSONValue appearance : list(entry, "appearances")) {
    const auto value = text(appearance, "value");
    if (text(appearance, "appearance") != "luminosity") return std::nullopt;
    if (value != "light" && value != "dark") return std::nullopt;
    result = {value == "dark", false};
  }
  return result;
}

/// A component as a fraction of 1.
std::optional<double> component(std::string_view text) {
  if (text.find('.') != text.npos) {
    const auto fraction = foundation::parseNumber(text);
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

/// A color in sRGB, or in the wide space Display P3.
std::optional<RGBA> makeColor(bool wide, std::string_view red, std::string_view green,
                              std::string_view blue, std::string_view alpha) {
  auto r = component(red);
  auto g = component(green);
  auto b = component(blue);
  const auto a = alphaComponent(alpha);
  if (!r || !g || !b || !a) return std::nullopt;
  if (wide) {
    // Both spaces have the same white point and transfer curve, so one matrix on linear light
    // converts.
    const double lr = linear(*r), lg = linear(*g), lb = linear(*b);
    r = encoded(1.2249402 * lr - 0.2249402 * lg);
    g = encoded(-0.0420569 * lr + 1.0420569 * lg);
    b = encoded(-0.0196376 * lr - 0.0786361 * lg + 1.0982736 * lb);
  }
  return RGBA{channel(*r), channel(*g), channel(*b), channel(*a)};
}

std::optional<RGBA> color(JSONValue entry) {
  const auto component = [&](std::string_view name) {
    return text(entry, "color", "components", name).value_or(std::string_view());
  };
  const auto space = text(entry, "color", "color-space").value_or("srgb");
  if (space == "gray-gamma-22" || space == "extended-gray") {
    const auto white = component("white");
    return makeColor(false, white, white, white, component("alpha"));
  }
  const bool wide = space == "display-p3";
  if (!wide && space != "srgb" && space != "extended-srgb") return std::nullopt;
  return makeColor(wide, component("red"), component("green"), component("blue"),
                   component("alpha"));
}

std::optional<std::string> svgFile(JSONValue entry) {
  const auto name = text(entry, "filename");
  if (!name || !name->ends_with(".svg")) return std::nullopt;
  return std::string(*name);
}

template <class T>
struct Looks {
  std::optional<T> any, light, dark;

  const std::optional<T>& base() const { return light ? light : any; }
};

/// The first readable entry for each appearance in the list `key`; absent without a light one.
/// Skips unreadable entries, because design tools leave some empty.
template <class T>
std::optional<Looks<T>> readLooks(JSONValue root, std::string_view key,
                                  std::optional<T> (*read)(JSONValue)) {
  Looks<T> looks;
  for (const JSONValue entry : list(root, key)) {
    const auto wanted = target(entry);
    if (!wanted) continue;
    auto& slot = wanted->any ? looks.any : wanted->dark ? looks.dark : looks.light;
    if (!slot) slot = read(entry);
  }
  if (!looks.base()) return std::nullopt;
  return looks;
}

/// Parses `json` and calls `read` with its root. The result must not view the document.
template <class Read>
auto withRoot(std::string_view json, Read read) -> decltype(read(std::declval<JSONValue>())) {
  foundation::JSONDocument document;
  const auto parsed = document.parse(json);
  const auto* root = std::get_if<JSONValue>(&parsed);
  if (!root) return {};
  return read(*root);
}

}  // namespace

std::optional<ColorSet> parseColorSet(std::string_view json) {
  return withRoot(json, [](JSONValue root) -> std::optional<ColorSet> {
    const auto looks = readLooks<RGBA>(root, "colors", color);
    if (!looks) return std::nullopt;
    const RGBA light = *looks->base();
    return ColorSet{light, looks->dark.value_or(looks->any.value_or(light))};
  });
}

std::optional<ImageSetFiles> parseImageSet(std::string_view json) {
  return withRoot(json, [](JSONValue root) -> std::optional<ImageSetFiles> {
    const auto looks = readLooks<std::string>(root, "images", svgFile);
    if (!looks) return std::nullopt;
    ImageSetFiles files{*looks->base(), looks->dark, false};
    if (!files.dark && looks->light) files.dark = looks->any;
    files.isTemplate = text(root, "properties", "template-rendering-intent") == "template";
    return files;
  });
}

std::optional<std::string> parseDataSet(std::string_view json) {
  return withRoot(json, [](JSONValue root) -> std::optional<std::string> {
    for (const JSONValue entry : list(root, "data")) {
      const auto name = text(entry, "filename");
      if (name && target(entry)) return std::string(*name);
    }
    return std::nullopt;
  });
}

bool providesNamespace(std::string_view json) {
  return withRoot(json, [](JSONValue root) {
    const auto provides = at(root, "properties", "provides-namespace");
    return provides && provides->kind() == JSONValue::Kind::boolean && provides->integer() == 1;
  });
}

namespace {

std::optional<double> length(std::string_view text) {
  constexpr double shortest = 1e-6, longest = 1e6;  // so that scaling and ratios stay finite
  if (text.ends_with("px")) text.remove_suffix(2);
  const auto value = foundation::parseNumber(text);
  return value && *value >= shortest && *value <= longest ? value : std::nullopt;
}

std::optional<SvgSize> sizeOf(std::string_view width, std::string_view height) {
  const auto across = length(width), down = length(height);
  return across && down ? std::optional(SvgSize{*across, *down}) : std::nullopt;
}

std::optional<SvgSize> viewBoxSize(std::string_view text) {
  std::array<std::string_view, 4> numbers;
  for (auto& number : numbers) {
    text.remove_prefix(std::min(text.find_first_not_of(" ,\t\r\n"), text.size()));
    number = text.substr(0, text.find_first_of(" ,\t\r\n"));
    text.remove_prefix(number.size());
  }
  return sizeOf(numbers[2], numbers[3]);
}

}  // namespace

std::optional<SvgSize> readSvgSize(std::string_view svg) {
  pugi::xml_document document;
  // A mistake behind the root's tag does not matter here.
  document.load_buffer(svg.data(), svg.size(), pugi::parse_minimal);
  const pugi::xml_node root = document.document_element();
  if (std::string_view(root.name()) != "svg") return std::nullopt;
  const auto size = sizeOf(root.attribute("width").value(), root.attribute("height").value());
  return size ? size : viewBoxSize(root.attribute("viewBox").value());
}

}  // namespace quorix::graphics
