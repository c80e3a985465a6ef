#pragma once

#include <QLabel>

namespace quorix::examples {

class Shop;

/// What the demo has to say for itself: the address that a page or a widget opened outside the
/// app, where a real one would have gone to the browser.
class DemoNote : public QLabel {
  Q_OBJECT

 public:
  explicit DemoNote(Shop& shop, QWidget* parent = nullptr);
};

}  // namespace quorix::examples
