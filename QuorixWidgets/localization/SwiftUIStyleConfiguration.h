#pragma once

#include <optional>
#include <string>

#include "platform/swiftui/Color.h"

namespace quorix {

/// The style that a declarative widget's view model holds.
struct SwiftUIStyleConfiguration {
  std::optional<std::string> regularFont;
  std::optional<std::string> semiBoldFont;
  std::optional<swiftui::Color> backgroundColor;
  bool showBorder = false;
};

}  // namespace quorix
