#include "platform/uikit/UIImageView.h"

#include <utility>

#include "platform/graphics/ImageName.h"

namespace quorix::uikit {
namespace {

/// The system's blue, for templates without a tint of their own.
constexpr graphics::RGBA defaultTint = {0, 122, 255, 255};

}  // namespace

UIImageView::UIImageView(UIImage::Ref image) : image_(std::move(image)) {
  startUntouched();
  if (image_) layOutAt({{}, image_->size()});
}

void UIImageView::setImage(UIImage::Ref image) {
  image_ = std::move(image);
  setNeedsLayout();
}

layout::Rect UIImageView::pictureFrame(const layout::Rect& rect, const UIEdgeInsets& insets,
                                       layout::Size size) {
  // The platform's frame for a layout rectangle: the rectangle with the insets taken back.
  const layout::Size room = {rect.size.width + insets.left + insets.right,
                             rect.size.height + insets.top + insets.bottom};
  if (room.width > 0 && room.height > 0) {
    return {{rect.left() - insets.left, rect.top() - insets.top}, room};
  }
  return {{rect.left() + (rect.size.width - size.width) / 2,
           rect.top() + (rect.size.height - size.height) / 2},
          size};
}

std::optional<layout::Size> UIImageView::intrinsicContentSize(std::optional<double>,
                                                              const LayoutContext&) const {
  if (!image_) return std::nullopt;
  const UIEdgeInsets& insets = image_->alignmentRectInsets();
  return layout::Size{image_->size().width - insets.left - insets.right,
                      image_->size().height - insets.top - insets.bottom};
}

void UIImageView::draw(const layout::Rect& frame, const LayoutContext& context,
                       std::vector<render::Item>& items) const {
  UIView::draw(frame, context, items);
  if (!image_) return;
  render::ImageItem item;
  item.frame = pictureFrame(frame, image_->alignmentRectInsets(), image_->size());
  item.name = image_->name();
  item.bundle = image_->bundle();
  const auto& tint = image_->tintColor();
  item.tint = tint ? tint->resolve(context.display.appearance) : defaultTint;
  if (image_->renderingMode() != UIImage::RenderingMode::automatic) {
    item.isTemplate = image_->renderingMode() == UIImage::RenderingMode::alwaysTemplate;
  }
  items.push_back(std::move(item));
}

std::optional<render::AccessibilityElement> UIImageView::describe(std::string_view language) const {
  if (!image_) return std::nullopt;
  render::AccessibilityElement element;
  element.role = render::Role::image;
  // A picture that can be tapped is better called by its name than not at all.
  const bool acts = !gestureRecognizers().empty() && image_->bundle();
  if (acts) element.label = graphics::spokenName(*image_->bundle(), image_->name(), language);
  return element;
}

}  // namespace quorix::uikit
