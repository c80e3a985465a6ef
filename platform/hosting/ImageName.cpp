#include "platform/hosting/ImageName.h"

#include "platform/foundation/LocalizedString.h"

namespace quorix::hosting {

std::string spokenName(const layout::elements::Image& image, std::string_view language) {
  for (const std::string_view folder : {language, std::string_view("en")}) {
    const auto path = image.bundle->pathForResource(folder, "lproj");
    const auto strings = path ? image.bundle->folder(*path) : nullptr;
    if (!strings) continue;
    const std::string name = foundation::localizedString(*strings, image.name, "Localizable");
    if (name != image.name) return name;
  }
  return foundation::localizedString(image.name, {});
}

}  // namespace quorix::hosting
