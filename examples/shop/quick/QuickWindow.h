#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace quorix::examples {

class Shop;

/// The shop in Qt Quick. Main thread; needs the application object.
class QuickWindow {
 public:
  /// Shows `shop`, which must outlive this.
  explicit QuickWindow(Shop& shop);

  QQuickWindow& window() const { return *window_; }

 private:
  QQmlApplicationEngine engine_;
  QQuickWindow* window_ = nullptr;
};

}  // namespace quorix::examples
