#pragma once

#include <QWidget>

#include "examples/shop/widgets/ScrollPage.h"

namespace quorix::examples {

class Shop;

/// The product's sizes. One of them is chosen.
class SizePicker : public QWidget {
  Q_OBJECT

 public:
  explicit SizePicker(Shop& shop, QWidget* parent = nullptr);
};

/// The score row between hairlines, with margins. Takes no space if there is nothing to show.
class ScoreSection : public QWidget {
  Q_OBJECT

 public:
  explicit ScoreSection(Shop& shop, QWidget* parent = nullptr);
};

/// The product page, with the score row below the price, and further information.
class ProductPage : public ScrollPage {
  Q_OBJECT

 public:
  explicit ProductPage(Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
