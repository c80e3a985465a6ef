#pragma once

#include <QImage>
#include <functional>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/WidgetsWindow.h"

namespace quorix::examples {

struct ShopScene;

/// Pictures of the shop in Qt Widgets. Main thread.
class WindowPictures {
 public:
  /// `shop` lives longer.
  explicit WindowPictures(Shop& shop);

  /// Hands each picture with its name to `keep`, until that says false.
  bool each(const std::function<bool(const QImage&, const char* name)>& keep);

 private:
  QImage pictureOf(const ShopScene& scene);

  Shop& shop_;
  WidgetsWindow face_;
};

}  // namespace quorix::examples
