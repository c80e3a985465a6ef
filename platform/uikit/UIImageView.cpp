#include "platform/uikit/UIImageView.h"

#include <utility>

#include "platform/foundation/StringTable.h"
#include "platform/graphics/AssetCatalog.h"

namespace quorix::uikit {
namespace {

/// The system's blue, the color of template images.
constexpr graphics::RGBA tint = {0, 122, 255, 255};

}  // namespace

UIImage::Ref UIImage::named(std::string_view name, const foundation::Bundle::Ref& bundle) {
  const auto& source = bundle ? bundle : foundation::Bundle::main();
  const auto asset = graphics::imageSet(source, name);
  if (!asset) return nullptr;
  return Ref(new UIImage(std::string(name), source, {asset->width, asset->height}));
}

UIImage::Ref UIImage::withAlignmentRectInsets(UIEdgeInsets insets) const {
  const auto copy = std::make_shared<UIImage>(*this);
  copy->alignmentRectInsets_ = insets;
  return copy;
}

UIImageView::UIImageView(UIImage::Ref image) : image_(std::move(image)) {
  startUntouched();
  if (image_) layOutAt({{}, image_->size()});
}

layout::Rect UIImageView::pictureFrame(const layout::Rect& rect, const UIEdgeInsets& insets,
                                       layout::Size size) {
  // The inverse of the layout rectangle: the rectangle extended by the insets.
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
  item.tint = tint;
  items.push_back(std::move(item));
}

std::optional<render::AccessibilityElement> UIImageView::describe(std::string_view language) const {
  if (!image_) return std::nullopt;
  render::AccessibilityElement element;
  element.role = render::Role::image;
  // An image that can be tapped needs a label: use its name.
  if (!gestureRecognizers().empty()) {
    element.label = foundation::spokenName(*image_->bundle(), image_->name(), language);
  }
  return element;
}

}  // namespace quorix::uikit
