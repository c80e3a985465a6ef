#pragma once

#include <QString>
#include <string>
#include <vector>

namespace quorix::examples {

/// A signed-in user of the shop.
struct Shopper {
  QString name;  ///< with what is special about them, for the demo bar
  std::string token;
  QString money;  ///< how an amount is written in the shopper's money, "%1 kr"
  int price = 0;  ///< of the product, in whole currency units

  /// The price of `count` pieces.
  QString priceOf(int count) const;

  /// The demo's shoppers, each with a token like the widget service's.
  static const std::vector<Shopper>& all();
};

}  // namespace quorix::examples
