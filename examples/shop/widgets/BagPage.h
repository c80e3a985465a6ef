#pragma once

#include <QWidget>

#include "examples/shop/Bag.h"
#include "examples/shop/widgets/ScrollPage.h"

namespace quorix::examples {

class Label;
class Shop;

/// The pieces of one size in the bag, as they are now.
class BagLine : public QWidget {
  Q_OBJECT

 public:
  BagLine(const Bag::Line& line, Shop& shop, QWidget* parent = nullptr);
};

/// The contents of the bag, their total price, and the return conditions.
class BagPage : public ScrollPage {
  Q_OBJECT

 public:
  explicit BagPage(Shop& shop, QWidget* parent = nullptr);

 private:
  void follow();
  void followBag();

  Shop& shop_;
  Label* title_;
  Label* empty_;
  QWidget* lines_;
  QWidget* sum_;
  Label* total_;
  Label* amount_;
  Label* returns_;
  Label* returnsText_;
};

}  // namespace quorix::examples
