#pragma once

#include "platform/foundation/Export.h"
#include "platform/uikit/UIColor.h"

namespace quorix::uikit {

class UIView;

/// The border of a view. Part of the view.
class QUORIX_EXPORT CALayer {
 public:
  explicit CALayer(UIView& view) : view_(view) {}
  CALayer(const CALayer&) = delete;
  CALayer& operator=(const CALayer&) = delete;

  /// Points, inside the view's edges and above its subviews; 0 for none.
  double borderWidth() const { return borderWidth_; }
  void setBorderWidth(double width);
  /// Null is black.
  const UIColor::Ref& borderColor() const { return borderColor_; }
  void setBorderColor(UIColor::Ref color);

 private:
  UIView& view_;
  double borderWidth_ = 0;
  UIColor::Ref borderColor_;
};

}  // namespace quorix::uikit
