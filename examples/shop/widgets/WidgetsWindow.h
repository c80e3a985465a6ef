#pragma once

#include <QWidget>

namespace quorix::examples {

class Shop;

/// The shop's Qt Widgets face. Main thread; needs a QApplication.
class WidgetsWindow : public QWidget {
  Q_OBJECT

 public:
  /// Shows `shop`, which lives longer.
  explicit WidgetsWindow(Shop& shop);

 private:
  Shop& shop_;
};

}  // namespace quorix::examples
