#pragma once

#include <QWidget>

namespace quorix::examples {

class Shop;

/// The product's sizes, one of them chosen.
class SizePicker : public QWidget {
  Q_OBJECT

 public:
  explicit SizePicker(Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
