#pragma once

#include <utility>

#include "platform/uikit/UIImage.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// An image, stretched to the frame. Not touched unless it is told otherwise.
///
/// The image's alignment insets are the view's: its frame is the layout rectangle, as constraints
/// have it, and the picture is drawn that much further out (positive insets) or in (negative).
class UIImageView final : public UIView {
 public:
  /// `image` at its natural size; null shows nothing.
  explicit UIImageView(UIImage::Ref image = nullptr);

  const UIImage::Ref& image() const { return image_; }
  void setImage(UIImage::Ref image);

  /// Where a picture of `size` and `insets` is drawn for the layout rectangle `rect`. Insets that
  /// would leave it no room leave it its natural size, in the middle.
  static layout::Rect pictureFrame(const layout::Rect& rect, const UIEdgeInsets& insets,
                                   layout::Size size);

  std::string_view className() const override { return "UIImageView"; }
  std::optional<layout::Size> intrinsicContentSize(std::optional<double> width,
                                                   const LayoutContext& context) const override;
  void draw(const layout::Rect& frame, const LayoutContext& context,
            std::vector<render::Item>& items) const override;
  std::optional<render::AccessibilityElement> describe(std::string_view language) const override;

 private:
  UIImage::Ref image_;
};

}  // namespace quorix::uikit
