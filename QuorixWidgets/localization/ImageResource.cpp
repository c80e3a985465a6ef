#include "QuorixWidgets/localization/ImageResource.h"

#include "QuorixWidgets/localization/ResourceBundle.h"

namespace quorix {

const swiftui::ImageResource& ImageResource::close() {
  static const swiftui::ImageResource resource{"close", resourceBundle()};
  return resource;
}

}  // namespace quorix
