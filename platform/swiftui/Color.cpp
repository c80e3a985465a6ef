#include "platform/swiftui/Color.h"

#include <mutex>
#include <utility>

#include "platform/graphics/AssetCatalog.h"
#include "platform/render/Wording.h"

namespace quorix::swiftui {

/// A color set by name, read once. With a null bundle it follows changes of the host's main bundle.
struct Color::Asset {
  Asset(std::string_view colorName, foundation::Bundle::Ref from)
      : name(colorName), bundle(std::move(from)) {}

  std::optional<graphics::ColorSet> set() const {
    if (!bundle) return graphics::colorSet(bundle, name);
    std::call_once(once, [this] { known = graphics::colorSet(bundle, name); });
    return known;
  }

  const std::string name;
  const foundation::Bundle::Ref bundle;
  mutable std::once_flag once;
  mutable std::optional<graphics::ColorSet> known;
};

Color::Color(std::string_view name, foundation::Bundle::Ref bundle)
    : asset_(std::make_shared<const Asset>(name, std::move(bundle))) {}

Color::Color(const ColorResource& resource) : Color(resource.name, resource.bundle) {}

const Color& Color::black() {
  static const Color color = fixed({0, 0, 0});
  return color;
}

const Color& Color::white() {
  static const Color color = fixed({255, 255, 255});
  return color;
}

std::optional<graphics::RGBA> Color::resolve(graphics::Appearance appearance) const {
  if (!asset_) return value_;
  const auto set = asset_->set();
  if (!set) return std::nullopt;
  return set->resolve(appearance);
}

std::string Color::description() const { return asset_ ? asset_->name : render::hex(value_); }

bool Color::operator==(const Color& other) const {
  if (!asset_ || !other.asset_) return !asset_ && !other.asset_ && value_ == other.value_;
  return asset_ == other.asset_ ||
         (asset_->name == other.asset_->name && asset_->bundle == other.asset_->bundle);
}

}  // namespace quorix::swiftui
