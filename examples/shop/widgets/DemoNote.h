#pragma once

#include <QLabel>

namespace quorix::examples {

class Shop;

/// A note of the demo itself: the address that a page or a widget opened outside the app. A real
/// address would open in the browser. Floats over its parent and everything that is open there.
class DemoNote : public QLabel {
  Q_OBJECT

 public:
  DemoNote(Shop& shop, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void place();
};

}  // namespace quorix::examples
