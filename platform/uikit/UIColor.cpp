#include "platform/uikit/UIColor.h"

#include "platform/graphics/AssetCatalog.h"

namespace quorix::uikit {

UIColor::Ref UIColor::named(std::string_view name, const foundation::Bundle::Ref& bundle) {
  const auto set = graphics::colorSet(bundle, name);
  return set ? Ref(new UIColor(std::string(name), *set)) : nullptr;
}

UIColor::Ref UIColor::fixed(graphics::RGBA value) { return Ref(new UIColor({}, {value, value})); }

}  // namespace quorix::uikit
