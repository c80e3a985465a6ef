#pragma once

#include "examples/shop/widgets/ScrollPage.h"

namespace quorix::examples {

class Shop;

/// The shop's page: the product, with the score row below its price and what is good to know.
class ProductPage : public ScrollPage {
  Q_OBJECT

 public:
  explicit ProductPage(Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
