#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/swiftui/ColorResource.h"

namespace quorix::swiftui {

/// A colour: fixed, or named in a bundle's asset catalogue with a value for each appearance.
/// A cheap value; any thread.
class QUORIX_EXPORT Color {
 public:
  /// The colour set `name` in `bundle` (null: the host's main bundle). Looked up when drawn.
  Color(std::string_view name, foundation::Bundle::Ref bundle);
  /// The colour set that `resource` names.
  Color(const ColorResource& resource) : Color(resource.name, resource.bundle) {}
  static Color fixed(graphics::RGBA value) { return Color(value, nullptr); }
  static const Color& black();
  static const Color& white();

  /// The value to draw with; nothing when the bundle has no colour set of that name.
  std::optional<graphics::RGBA> resolve(graphics::Appearance appearance) const;

  /// How a printed view tree names it: the asset's name, or "#RRGGBBAA".
  std::string description() const;

  bool operator==(const Color&) const = default;

 private:
  struct Asset {
    std::string name;
    foundation::Bundle::Ref bundle;
    bool operator==(const Asset&) const = default;
  };
  Color(graphics::RGBA value, std::nullptr_t) : value_(value) {}
  std::variant<graphics::RGBA, Asset> value_;
};

}  // namespace quorix::swiftui
