#pragma once

#include <QWidget>

namespace quorix::examples {

class Notice;
class Shop;

/// The shop below the demo bar: its head, one of its pages, and what can be done there.
class ShopScreen : public QWidget {
  Q_OBJECT

 public:
  explicit ShopScreen(Shop& shop, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makeFooter(Shop& shop);

  Notice* notice_;
};

}  // namespace quorix::examples
