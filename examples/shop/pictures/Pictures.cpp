#include "examples/shop/pictures/Pictures.h"

#include <QDir>
#include <algorithm>
#include <cstdio>

#include "examples/shop/OverlayPages.h"
#include "examples/shop/Shop.h"

namespace quorix::examples {

bool Pictures::write() const {
  if (!QDir().mkpath(folder_)) {
    std::fprintf(stderr, "quorix-shop: can't make the folder %s\n", qPrintable(folder_));
    return false;
  }
  const auto keep = [this](const QImage& image, const char* name) { return save(image, name); };
  Shop shop;
  const OverlayPages pages(shop);
  return eachWidgetPicture(keep) && QuickPictures(shop).each(keep) &&
         WindowPictures(shop).each(keep);
}

bool Pictures::save(const QImage& image, const char* name) const {
  const QString path = QStringLiteral("%1/%2.png").arg(folder_, QLatin1String(name));
  if (!image.save(path)) {
    std::fprintf(stderr, "quorix-shop: can't write %s\n", qPrintable(path));
    return false;
  }
  std::puts(qPrintable(path));
  return true;
}

}  // namespace quorix::examples
