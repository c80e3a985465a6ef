#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/foundation/Bundle.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// Points. Negative insets extend outwards.
using UIEdgeInsets = layout::SideInsets;

/// An image of an asset catalog and how to show it: an immutable object, shared by reference.
/// Any thread.
///
///     auto image = UIImage::named("close", bundle)->withAlignmentRectInsets({-8, -8, -8, -8});
class UIImage {
 public:
  using Ref = std::shared_ptr<const UIImage>;

  /// The image set `name` in `bundle` (null: the host's main bundle), or null when there is none.
  static Ref named(std::string_view name, const foundation::Bundle::Ref& bundle);

  /// The same picture with another layout rectangle: its bounds, reduced by `insets`.
  Ref withAlignmentRectInsets(UIEdgeInsets insets) const;

  const std::string& name() const { return name_; }
  const foundation::Bundle::Ref& bundle() const { return bundle_; }
  /// Points.
  layout::Size size() const { return size_; }
  const UIEdgeInsets& alignmentRectInsets() const { return alignmentRectInsets_; }

 private:
  UIImage(std::string name, foundation::Bundle::Ref bundle, layout::Size size)
      : name_(std::move(name)), bundle_(std::move(bundle)), size_(size) {}

  std::string name_;
  foundation::Bundle::Ref bundle_;
  layout::Size size_;
  UIEdgeInsets alignmentRectInsets_;
};

/// An image, stretched to the frame. Takes no touches by default.
///
/// The view has the alignment insets of its image. Constraints set the layout rectangle, which is
/// the view's frame. Positive insets make the picture larger than the frame, negative ones smaller.
class UIImageView final : public UIView {
 public:
  /// `image` at its natural size; null for no image.
  explicit UIImageView(UIImage::Ref image = nullptr);

  /// The frame of a picture of `size` and `insets` for the layout rectangle `rect`. If the insets
  /// leave no room, it has its natural size, centered in `rect`.
  static layout::Rect pictureFrame(const layout::Rect& rect, const UIEdgeInsets& insets,
                                   layout::Size size);

  std::string_view className() const override { return "UIImageView"; }
  std::optional<layout::Size> intrinsicContentSize(std::optional<double> width,
                                                   const LayoutContext& context) const override;
  void draw(const layout::Rect& frame, const LayoutContext& context,
            std::vector<render::Item>& items) const override;
  std::optional<render::AccessibilityElement> describe(std::string_view language) const override;

 private:
  const UIImage::Ref image_;
};

}  // namespace quorix::uikit
