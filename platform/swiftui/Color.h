#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/swiftui/Resource.h"

namespace quorix::swiftui {

/// A color: fixed, or named in a bundle's asset catalog with a value for each appearance.
/// A cheap value; any thread.
class QUORIX_EXPORT Color {
 public:
  /// The color set `name` in `bundle` (null: the host's main bundle). Looked up at the first
  /// drawing.
  Color(std::string_view name, foundation::Bundle::Ref bundle);
  /// The color set that `resource` names.
  Color(const ColorResource& resource);
  static Color fixed(graphics::RGBA value) { return Color(value); }
  static const Color& black();
  static const Color& white();

  /// The value to draw with; absent if the bundle has no color set of that name.
  std::optional<graphics::RGBA> resolve(graphics::Appearance appearance) const;

  /// Its text in a printed view tree: the asset's name, or "#RRGGBBAA".
  std::string description() const;

  bool operator==(const Color& other) const;

 private:
  struct Asset;

  explicit Color(graphics::RGBA value) : value_(value) {}

  std::shared_ptr<const Asset> asset_;  // null for a fixed color
  graphics::RGBA value_;
};

}  // namespace quorix::swiftui
