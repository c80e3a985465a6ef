#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/foundation/Bundle.h"
#include "platform/layout/Geometry.h"
#include "platform/uikit/UIColor.h"
#include "platform/uikit/UIEdgeInsets.h"

namespace quorix::uikit {

/// An image of an asset catalogue and how to show it: an immutable object, shared by reference.
/// Any thread.
///
///     auto image = UIImage::named("close", bundle)->withAlignmentRectInsets({-8, -8, -8, -8});
class UIImage {
 public:
  using Ref = std::shared_ptr<const UIImage>;

  /// Whether the asset's colours or the tint show; the numbers are the platform's.
  enum class RenderingMode : std::uint8_t { automatic = 0, alwaysOriginal = 1, alwaysTemplate = 2 };

  /// The image set `name` in `bundle` (null: the host's main bundle), or null when there is none.
  static Ref named(std::string_view name, const foundation::Bundle::Ref& bundle);

  /// The same picture with another layout rectangle: its bounds, moved inwards by `insets`.
  Ref withAlignmentRectInsets(UIEdgeInsets insets) const;
  Ref withTintColor(UIColor::Ref color, RenderingMode mode) const;

  const std::string& name() const { return name_; }
  const foundation::Bundle::Ref& bundle() const { return bundle_; }
  /// Points.
  layout::Size size() const { return size_; }
  const UIEdgeInsets& alignmentRectInsets() const { return alignmentRectInsets_; }
  /// Null without a tint of its own.
  const UIColor::Ref& tintColor() const { return tintColor_; }
  RenderingMode renderingMode() const { return renderingMode_; }

 private:
  UIImage(std::string name, foundation::Bundle::Ref bundle, layout::Size size)
      : name_(std::move(name)), bundle_(std::move(bundle)), size_(size) {}

  std::string name_;
  foundation::Bundle::Ref bundle_;
  layout::Size size_;
  UIEdgeInsets alignmentRectInsets_;
  UIColor::Ref tintColor_;
  RenderingMode renderingMode_ = RenderingMode::automatic;
};

}  // namespace quorix::uikit
