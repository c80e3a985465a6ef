#include "platform/graphics/ImageName.h"

#include "platform/foundation/LocalizedString.h"

namespace quorix::graphics {

std::string spokenName(const foundation::Bundle& bundle, const std::string& image,
                       std::string_view language) {
  for (const std::string_view folder : {language, std::string_view("en")}) {
    const auto path = bundle.pathForResource(folder, "lproj");
    const auto strings = path ? bundle.folder(*path) : nullptr;
    if (!strings) continue;
    const std::string name = foundation::localizedString(*strings, image, "Localizable");
    if (name != image) return name;
  }
  return foundation::localizedString(image, {});
}

}  // namespace quorix::graphics
