#include "QuorixWidgets/localization/Color.h"

#include "QuorixWidgets/localization/ResourceBundle.h"

namespace quorix {

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

}  // namespace quorix
