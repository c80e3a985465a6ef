#include "platform/swiftui/Color.h"

#include <array>
#include <cstdio>
#include <utility>

#include "platform/graphics/AssetCatalog.h"

namespace quorix::swiftui {

Color::Color(std::string_view name, foundation::Bundle::Ref bundle)
    : value_(Asset{std::string(name), std::move(bundle)}) {}

const Color& Color::black() {
  static const Color color = fixed({0, 0, 0});
  return color;
}

const Color& Color::white() {
  static const Color color = fixed({255, 255, 255});
  return color;
}

std::optional<graphics::RGBA> Color::resolve(graphics::Appearance appearance) const {
  if (const auto* value = std::get_if<graphics::RGBA>(&value_)) return *value;
  const Asset& asset = std::get<Asset>(value_);
  const auto set = graphics::colorSet(asset.bundle, asset.name);
  if (!set) return std::nullopt;
  return set->resolve(appearance);
}

std::string Color::description() const {
  const auto* value = std::get_if<graphics::RGBA>(&value_);
  if (value == nullptr) return std::get<Asset>(value_).name;
  std::array<char, 10> text;
  std::snprintf(text.data(), text.size(), "#%02X%02X%02X%02X", value->red, value->green,
                value->blue, value->alpha);
  return text.data();
}

}  // namespace quorix::swiftui
