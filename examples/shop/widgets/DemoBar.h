#pragma once

#include <QWidget>

namespace quorix::examples {

class Shop;

/// The demo's controls, apart from the shop and always dark.
class DemoBar : public QWidget {
  Q_OBJECT

 public:
  explicit DemoBar(Shop& shop, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorix::examples
