#pragma once

#include <QWidget>

#include "examples/shop/Bag.h"

namespace quorix::examples {

class Shop;

/// The pieces of one size in the bag, as they are now.
class BagLine : public QWidget {
  Q_OBJECT

 public:
  BagLine(const Bag::Line& line, Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
