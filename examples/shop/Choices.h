#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "platform/swiftui/Environment.h"

namespace quorix::examples {

/// The settings of the demo bar: indexes into the shop's lists.
struct Choices {
  int shopper = 0;
  int language = 0;
  int appearance = 0;  ///< 0 as on the desktop, 1 light, 2 dark
  int face = 0;

  bool operator==(const Choices&) const = default;
};

/// The faces of the widgets' texts.
struct TextFace {
  QString name;      ///< for the demo bar
  QString regular;   ///< the shop's own face; empty for the widgets' face
  QString semiBold;  ///< the shop's own face; empty for the widgets' face
  std::optional<swiftui::ContentSizeCategory> textSize;  ///< absent: the user's

  static const std::vector<TextFace>& all();
};

/// A language of the shop.
struct ShopLanguage {
  QString name;  ///< in the language itself, for the demo bar
  QString code;
  bool rightToLeft = false;

  static const std::vector<ShopLanguage>& all();
};

}  // namespace quorix::examples
