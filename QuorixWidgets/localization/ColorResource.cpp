#include "QuorixWidgets/localization/ColorResource.h"

#include "QuorixWidgets/localization/ResourceBundle.h"

namespace quorix {

const swiftui::ColorResource& ColorResource::grey1() {
  static const swiftui::ColorResource resource{"Grey1", resourceBundle()};
  return resource;
}

const swiftui::ColorResource& ColorResource::grey2() {
  static const swiftui::ColorResource resource{"Grey2", resourceBundle()};
  return resource;
}

}  // namespace quorix
