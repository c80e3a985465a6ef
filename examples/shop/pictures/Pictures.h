#pragma once

#include <QImage>
#include <QString>
#include <functional>

#include "examples/shop/Shop.h"
#include "examples/shop/quick/QuickWindow.h"
#include "examples/shop/widgets/WidgetsWindow.h"

namespace quorix::examples {

/// The demo's scenes as PNG files: widgets and sheets alone and in the shop, in both toolkits. Main
/// thread; needs the application object, the engine and the services.
class Pictures {
 public:
  explicit Pictures(QString folder) : folder_(std::move(folder)) {}

  /// Writes all pictures, creates a missing folder, and prints each file's name. On a write error,
  /// prints one line on the standard error stream and returns false.
  bool write() const;

 private:
  bool save(const QImage& image, const char* name) const;

  QString folder_;
};

struct ShopScene;

/// Takes a picture and its name. Returns whether to go on.
using Keep = std::function<bool(const QImage&, const char* name)>;

/// Pictures of the shop in Qt Quick. Main thread.
class QuickPictures {
 public:
  /// `shop` must outlive this.
  explicit QuickPictures(Shop& shop);

  /// Calls `keep` with each picture, until it returns false.
  bool each(const Keep& keep);

 private:
  QImage pictureOf(const ShopScene& scene);

  Shop& shop_;
  QuickWindow face_;
};

/// Calls `keep` with each picture of the widgets and their sheets alone, until it returns false.
/// Main thread.
bool eachWidgetPicture(const Keep& keep);

/// Pictures of the shop in Qt Widgets. Main thread.
class WindowPictures {
 public:
  /// `shop` must outlive this.
  explicit WindowPictures(Shop& shop);

  /// Calls `keep` with each picture, until it returns false.
  bool each(const Keep& keep);

 private:
  QImage pictureOf(const ShopScene& scene);

  Shop& shop_;
  WidgetsWindow face_;
};

}  // namespace quorix::examples
