#pragma once

#include <QString>
#include <string>
#include <vector>

namespace quorix::examples {

/// Somebody who is signed in to the shop.
struct Shopper {
  QString name;  ///< with what is special about them, for the demo bar
  std::string token;
  QString price;  ///< of the product, in the shopper's money

  /// Everybody whom the demo knows, each with a token as the widget service would issue it.
  static const std::vector<Shopper>& all();
};

}  // namespace quorix::examples
