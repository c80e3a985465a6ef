#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "platform/swiftui/Environment.h"

namespace quorix::examples {

/// What the demo bar is set to: indexes into the shop's lists.
struct Choices {
  int shopper = 0;
  int language = 0;
  int appearance = 0;  ///< 0 the desktop's, 1 light, 2 dark
  int face = 0;

  bool operator==(const Choices&) const = default;
};

/// What the widgets' texts are set in.
struct TextFace {
  QString name;      ///< for the demo bar
  QString regular;   ///< a face of the shop's own, empty for the widgets'
  QString semiBold;  ///< likewise
  std::optional<swiftui::ContentSizeCategory> textSize;  ///< nothing: the user's

  static const std::vector<TextFace>& all();
};

/// A language that the shop speaks.
struct ShopLanguage {
  QString name;  ///< in itself, for the demo bar
  QString code;
  bool rightToLeft = false;

  static const std::vector<ShopLanguage>& all();
};

}  // namespace quorix::examples
