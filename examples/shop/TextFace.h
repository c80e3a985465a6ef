#pragma once

#include <QString>
#include <vector>

#include "platform/swiftui/ContentSizeCategory.h"

namespace quorix::examples {

/// What the widgets' texts are set in.
struct TextFace {
  QString name;      ///< for the demo bar
  QString regular;   ///< a face of the shop's own, empty for the widgets'
  QString semiBold;  ///< likewise
  swiftui::ContentSizeCategory textSize;

  static const std::vector<TextFace>& all();
};

}  // namespace quorix::examples
