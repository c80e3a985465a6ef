#pragma once

#include <QString>
#include <vector>

namespace quorix::examples {

/// A language that the shop speaks.
struct ShopLanguage {
  QString name;  ///< in itself, for the demo bar
  QString code;
  bool rightToLeft = false;

  static const std::vector<ShopLanguage>& all();
};

}  // namespace quorix::examples
