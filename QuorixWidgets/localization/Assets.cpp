#include "QuorixWidgets/localization/Assets.h"

#include <string>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/Error.h"

namespace quorix {
namespace {

uikit::UIColor::Ref requireColor(std::string_view name) {
  auto color = uikit::UIColor::named(name, libraryBundle());
  if (!color) {
    foundation::fatalError("No color named '" + std::string(name) + "' in the asset catalog",
                           "QuorixWidgets/Colors");
  }
  return color;
}

}  // namespace

const swiftui::Color& Color::widgetBackground() {
  static const swiftui::Color color("Background", libraryBundle());
  return color;
}

const swiftui::Color& Color::defaultFontColor() {
  static const swiftui::Color color("DefaultFontColor", libraryBundle());
  return color;
}

const swiftui::Color& Color::overlayBackgrounColor() {
  static const swiftui::Color color("OverlayBackground", libraryBundle());
  return color;
}

const uikit::UIColor::Ref& UIColor::widgetBackground() {
  static const auto color = requireColor("Background");
  return color;
}

const uikit::UIColor::Ref& UIColor::defaultFontColor() {
  static const auto color = requireColor("DefaultFontColor");
  return color;
}

const uikit::UIColor::Ref& UIColor::overlayBackgrounColor() {
  static const auto color = requireColor("OverlayBackground");
  return color;
}

const swiftui::ColorResource& ColorResource::grey1() {
  static const swiftui::ColorResource resource{"Grey1", resourceBundle()};
  return resource;
}

const swiftui::ColorResource& ColorResource::grey2() {
  static const swiftui::ColorResource resource{"Grey2", resourceBundle()};
  return resource;
}

const swiftui::ImageResource& ImageResource::close() {
  static const swiftui::ImageResource resource{"close", resourceBundle()};
  return resource;
}

}  // namespace quorix
