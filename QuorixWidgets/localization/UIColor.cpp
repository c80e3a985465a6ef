#include "QuorixWidgets/localization/UIColor.h"

#include <string>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/foundation/FatalError.h"

namespace quorix {
namespace {

uikit::UIColor::Ref require(std::string_view name) {
  auto color = uikit::UIColor::named(name, libraryBundle());
  if (!color) {
    foundation::fatalError("No color named '" + std::string(name) + "' in the asset catalog",
                           "QuorixWidgets/Colors");
  }
  return color;
}

}  // namespace

const UIColor::Ref& UIColor::widgetBackground() {
  static const Ref color = require("Background");
  return color;
}

const UIColor::Ref& UIColor::defaultFontColor() {
  static const Ref color = require("DefaultFontColor");
  return color;
}

const UIColor::Ref& UIColor::overlayBackgrounColor() {
  static const Ref color = require("OverlayBackground");
  return color;
}

}  // namespace quorix
