#pragma once

#include <QWidget>

#include "examples/shop/widgets/ScrollPage.h"

namespace quorix::examples {

class Shop;

/// The product's sizes, one of them chosen.
class SizePicker : public QWidget {
  Q_OBJECT

 public:
  explicit SizePicker(Shop& shop, QWidget* parent = nullptr);
};

class Shop;

/// The score row between hairlines, and the room around them. With nothing to show it takes no
/// room at all.
class ScoreSection : public QWidget {
  Q_OBJECT

 public:
  explicit ScoreSection(Shop& shop, QWidget* parent = nullptr);
};

class Shop;

/// The shop's page: the product, with the score row below its price and what is good to know.
class ProductPage : public ScrollPage {
  Q_OBJECT

 public:
  explicit ProductPage(Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
