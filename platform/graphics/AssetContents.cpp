#include "platform/graphics/AssetContents.h"

#include <simdjson.h>

#include "platform/graphics/ColorComponents.h"

namespace quorix::graphics {
namespace {

using simdjson::dom::element;

std::optional<std::string_view> text(const simdjson::simdjson_result<element>& value) {
  std::string_view result;
  if (value.get(result) != simdjson::SUCCESS) return std::nullopt;
  return result;
}

/// The appearance that an entry is for; nothing for one that no surface asks for.
struct Target {
  bool dark = false;
  bool any = true;
};

std::optional<Target> target(element entry) {
  const auto idiom = text(entry["idiom"]);
  if (idiom && *idiom != "universal") return std::nullopt;
  Target result;
  simdjson::dom::array appearances;
  if (entry["appearances"].get(appearances) != simdjson::SUCCESS) return result;
  for (const element appearance : appearances) {
    const auto value = text(appearance["value"]);
    if (text(appearance["appearance"]) != "luminosity") return std::nullopt;
    if (value != "light" && value != "dark") return std::nullopt;
    result = {value == "dark", false};
  }
  return result;
}

std::optional<RGBA> color(element entry) {
  const auto color = entry["color"];
  const auto components = color["components"];
  const auto component = [&](std::string_view name) {
    return text(components[name]).value_or(std::string_view());
  };
  const auto space = text(color["color-space"]).value_or("srgb");
  if (space == "gray-gamma-22" || space == "extended-gray") {
    const auto white = component("white");
    return makeColor(ColorSpace::sRGB, white, white, white, component("alpha"));
  }
  const bool wide = space == "display-p3";
  if (!wide && space != "srgb" && space != "extended-srgb") return std::nullopt;
  return makeColor(wide ? ColorSpace::displayP3 : ColorSpace::sRGB, component("red"),
                   component("green"), component("blue"), component("alpha"));
}

std::optional<std::string> svgFile(element entry) {
  const auto name = text(entry["filename"]);
  if (!name || !name->ends_with(".svg")) return std::nullopt;
  return std::string(*name);
}

template <class T>
struct Looks {
  std::optional<T> any, light, dark;

  const std::optional<T>& base() const { return light ? light : any; }
};

/// The first readable entry for each appearance in the list `key`; nothing without a light one.
/// Design tools leave entries empty, so an entry that cannot be read is passed over.
template <class T>
std::optional<Looks<T>> readLooks(element root, std::string_view key,
                                  std::optional<T> (*read)(element)) {
  simdjson::dom::array entries;
  if (root[key].get(entries) != simdjson::SUCCESS) return std::nullopt;
  Looks<T> looks;
  for (const element entry : entries) {
    const auto wanted = target(entry);
    if (!wanted) continue;
    auto& slot = wanted->any ? looks.any : wanted->dark ? looks.dark : looks.light;
    if (!slot) slot = read(entry);
  }
  if (!looks.base()) return std::nullopt;
  return looks;
}

/// Parses `json` and hands its root to `read`, which must copy what it keeps.
template <class Read>
auto withRoot(std::string_view json, Read read) -> decltype(read(element())) {
  simdjson::dom::parser parser;
  element root;
  if (parser.parse(json.data(), json.size()).get(root) != simdjson::SUCCESS) return {};
  return read(root);
}

}  // namespace

std::optional<ColorSet> parseColorSet(std::string_view json) {
  return withRoot(json, [](element root) -> std::optional<ColorSet> {
    const auto looks = readLooks<RGBA>(root, "colors", color);
    if (!looks) return std::nullopt;
    const RGBA light = *looks->base();
    return ColorSet{light, looks->dark.value_or(looks->any.value_or(light))};
  });
}

std::optional<ImageSetFiles> parseImageSet(std::string_view json) {
  return withRoot(json, [](element root) -> std::optional<ImageSetFiles> {
    const auto looks = readLooks<std::string>(root, "images", svgFile);
    if (!looks) return std::nullopt;
    ImageSetFiles files{*looks->base(), looks->dark, false};
    if (!files.dark && looks->light) files.dark = looks->any;
    files.isTemplate = text(root["properties"]["template-rendering-intent"]) == "template";
    return files;
  });
}

std::optional<std::string> parseDataSet(std::string_view json) {
  return withRoot(json, [](element root) -> std::optional<std::string> {
    simdjson::dom::array entries;
    if (root["data"].get(entries) != simdjson::SUCCESS) return std::nullopt;
    for (const element entry : entries) {
      const auto name = text(entry["filename"]);
      if (name && target(entry)) return std::string(*name);
    }
    return std::nullopt;
  });
}

bool providesNamespace(std::string_view json) {
  return withRoot(json, [](element root) {
    bool provides = false;
    return root["properties"]["provides-namespace"].get(provides) == simdjson::SUCCESS && provides;
  });
}

}  // namespace quorix::graphics
