#pragma once

#include <optional>
#include <string>

#include "qt/PictureOptions.h"
#include "tools/quorix/OptionReader.h"
#include "tools/quorix/WidgetLook.h"

namespace quorix::tool {

/// What every command that shows a widget is asked: how the widget is to look, and in which forms
/// it is wanted.
struct WidgetRequest : WidgetLook {
  qt::PictureOptions picture = {};

  std::optional<std::string> out = {};  ///< a file
  bool tree = false;
  bool frames = false;
  bool accessibility = false;
  bool json = false;

  /// What `widgetOptions` were given. What is wrong with them, `read` remembers.
  static WidgetRequest from(OptionReader& read);
};

}  // namespace quorix::tool
