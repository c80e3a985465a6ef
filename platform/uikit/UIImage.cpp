#include "platform/uikit/UIImage.h"

#include <utility>

#include "platform/graphics/AssetCatalog.h"

namespace quorix::uikit {

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

UIImage::Ref UIImage::withTintColor(UIColor::Ref color, RenderingMode mode) const {
  const auto copy = std::make_shared<UIImage>(*this);
  copy->tintColor_ = std::move(color);
  copy->renderingMode_ = mode;
  return copy;
}

}  // namespace quorix::uikit
