#include "QuorixWidgets/localization/UIFont.h"

#include "platform/foundation/FatalError.h"

namespace quorix {

UIFont::Ref UIFont::require(const std::string& name, double size) {
  auto font = named(name, size);
  if (!font) foundation::fatalError("No font face named '" + name + "'", "QuorixWidgets/Fonts");
  return font;
}

}  // namespace quorix
