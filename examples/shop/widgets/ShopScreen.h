#pragma once

#include <QWidget>

namespace quorix::examples {

class Notice;
class Shop;

/// The shop below the demo bar: its header, one of its pages, and that page's buttons.
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
