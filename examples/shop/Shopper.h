#pragma once

#include <QString>
#include <string>
#include <vector>

namespace quorix::examples {

/// Somebody who is signed in to the shop.
struct Shopper {
  QString name;  ///< with what is special about them, for the demo bar
  std::string token;
  QString money;  ///< how an amount is written in the shopper's money, "%1 kr"
  int price = 0;  ///< of the product, in whole units of that money

  /// What `count` pieces cost.
  QString priceOf(int count) const;

  /// The demo's shoppers, each with a token as the widget service would issue it.
  static const std::vector<Shopper>& all();
};

}  // namespace quorix::examples
