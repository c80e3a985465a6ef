#pragma once

#include "platform/uikit/UIColor.h"

namespace quorix {

/// The library's named colours for the imperative toolkit, each looked up on first read and the
/// same object ever after. Never null: a library without the colour stops the process. Any thread.
class UIColor : public uikit::UIColor {
 public:
  UIColor() = delete;

  /// Behind the info widgets.
  static const Ref& widgetBackground();
  /// Text and borders.
  static const Ref& defaultFontColor();
  /// Behind the web overlay.
  static const Ref& overlayBackgrounColor();
};

}  // namespace quorix
