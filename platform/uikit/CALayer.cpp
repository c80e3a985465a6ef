#include "platform/uikit/CALayer.h"

#include <utility>

#include "platform/uikit/UIView.h"

namespace quorix::uikit {

void CALayer::setBorderWidth(double width) {
  borderWidth_ = width;
  view_.setNeedsLayout();
}

void CALayer::setBorderColor(UIColor::Ref color) {
  borderColor_ = std::move(color);
  view_.setNeedsLayout();
}

}  // namespace quorix::uikit
