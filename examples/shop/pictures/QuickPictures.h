#pragma once

#include <QImage>
#include <functional>

#include "examples/shop/Shop.h"
#include "examples/shop/quick/QuickWindow.h"

namespace quorix::examples {

struct ShopScene;

/// Pictures of the shop in Qt Quick. Main thread.
class QuickPictures {
 public:
  /// `shop` lives longer.
  explicit QuickPictures(Shop& shop);

  /// Hands each picture with its name to `keep`, until that says false.
  bool each(const std::function<bool(const QImage&, const char* name)>& keep);

 private:
  QImage pictureOf(const ShopScene& scene);

  Shop& shop_;
  QuickWindow face_;
};

}  // namespace quorix::examples
