#pragma once

#include <optional>
#include <string>

#include "platform/uikit/UIColor.h"

namespace quorix {

/// The style that the imperative info widget's view model holds.
struct UIKitStyleConfiguration {
  std::optional<std::string> regularFont;
  std::optional<std::string> semiBoldFont;
  uikit::UIColor::Ref backgroundColor;  ///< null: the library's own
  bool showBorder = false;
};

}  // namespace quorix
