#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include "examples/shop/Shop.h"

namespace quorix::examples {

class ScoreRow;

/// The shop on screen. Main thread; needs the application object.
class ShopWindow {
 public:
  ShopWindow();

  /// What the demo bar's choices are set to: indexes into the shop's lists, and for the appearance
  /// 0 for the desktop's, 1 for light, 2 for dark.
  struct Choices {
    int shopper = 0;
    int language = 0;
    int appearance = 0;
    int face = 0;
  };
  void choose(const Choices& choices);

  QQuickWindow& window() const { return *window_; }
  ScoreRow& row() const;

 private:
  Shop shop_;
  QQmlApplicationEngine engine_;
  QQuickWindow* window_ = nullptr;
};

}  // namespace quorix::examples
