#pragma once

#include <QImage>
#include <QString>
#include <functional>

#include "examples/shop/Shop.h"
#include "examples/shop/quick/QuickWindow.h"
#include "examples/shop/widgets/WidgetsWindow.h"

namespace quorix::examples {

/// The demo's scenes as PNG files: widgets and sheets on their own, and in the shop, in both
/// toolkits. Main thread; needs the application object, the engine and the services.
class Pictures {
 public:
  explicit Pictures(QString folder) : folder_(std::move(folder)) {}

  /// Writes them all, makes the folder where it is missing, and prints each file's name. False
  /// after a line on the standard error when one can't be written.
  bool write() const;

 private:
  bool save(const QImage& image, const char* name) const;

  QString folder_;
};

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

/// Pictures of the widgets and their sheets on their own. Main thread.
class WidgetPictures {
 public:
  WidgetPictures() = delete;

  /// Hands each picture with its name to `keep`, until that says false.
  static bool each(const std::function<bool(const QImage&, const char* name)>& keep);
};

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
