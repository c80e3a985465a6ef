#pragma once

#include "platform/swiftui/Color.h"

namespace quorix {

/// The library's named colours for the declarative toolkit, each made on first read. Any thread.
class Color : public swiftui::Color {
 public:
  Color() = delete;

  /// Behind the info widgets.
  static const swiftui::Color& widgetBackground();
  /// Text and borders.
  static const swiftui::Color& defaultFontColor();
  /// Behind the web overlay.
  static const swiftui::Color& overlayBackgrounColor();
};

}  // namespace quorix
