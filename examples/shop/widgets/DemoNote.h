#pragma once

#include <QLabel>

namespace quorix::examples {

class Shop;

/// A note of the demo's own: the address that a page or a widget opened outside the app, where a
/// real one would have gone to the browser. It floats over its parent and all that is open there.
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
