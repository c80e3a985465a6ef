#pragma once

#include <QMainWindow>

namespace quorix::examples {

class Shop;

/// The shop in Qt Widgets. Main thread; needs a QApplication.
class WidgetsWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// Shows `shop`, which must outlive this.
  explicit WidgetsWindow(Shop& shop);

 private:
  Shop& shop_;
};

}  // namespace quorix::examples
