#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"

namespace quorix::uikit {

/// A color of the imperative toolkit: an immutable object, shared by reference. Unlike the
/// declarative color it is resolved when it is made. Any thread.
class QUORIX_EXPORT UIColor {
 public:
  using Ref = std::shared_ptr<const UIColor>;

  /// The color set `name` in `bundle` (null: the host's main bundle), or null when there is none.
  static Ref named(std::string_view name, const foundation::Bundle::Ref& bundle);
  /// The same value in both appearances.
  static Ref fixed(graphics::RGBA value);

  /// The value to draw with.
  graphics::RGBA resolve(graphics::Appearance appearance) const {
    return values_.resolve(appearance);
  }
  /// The asset's name; empty for a fixed color.
  const std::string& name() const { return name_; }

  bool operator==(const UIColor&) const = default;

 private:
  UIColor(std::string name, graphics::ColorSet values) : name_(std::move(name)), values_(values) {}

  std::string name_;
  graphics::ColorSet values_;
};

}  // namespace quorix::uikit
