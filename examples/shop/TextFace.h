#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "platform/swiftui/ContentSizeCategory.h"

namespace quorix::examples {

/// What the widgets' texts are set in.
struct TextFace {
  QString name;      ///< for the demo bar
  QString regular;   ///< a face of the shop's own, empty for the widgets'
  QString semiBold;  ///< likewise
  std::optional<swiftui::ContentSizeCategory> textSize;  ///< nothing: the user's

  static const std::vector<TextFace>& all();
};

}  // namespace quorix::examples
