#pragma once

#include <QWidget>

namespace quorix::examples {

class Shop;

/// The shop's name between the back button and the bag.
class ShopHeader : public QWidget {
  Q_OBJECT

 public:
  explicit ShopHeader(Shop& shop, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorix::examples
