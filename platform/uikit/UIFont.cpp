#include "platform/uikit/UIFont.h"

#include "platform/graphics/FontManager.h"

namespace quorix::uikit {

UIFont::Ref UIFont::named(std::string_view name, double size) {
  if (!graphics::FontManager::shared().knows(name)) return nullptr;
  return Ref(new UIFont(name, size));
}

UIFont::Ref UIFont::system(double size) { return Ref(new UIFont({}, size)); }

}  // namespace quorix::uikit
