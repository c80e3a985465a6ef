#include "tools/quorix/gallery/FewColors.h"

#include <QHash>

namespace quorix::gallery {

QImage withFewColors(const QImage& image) {
  const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
  QImage indexed(opaque.size(), QImage::Format_Indexed8);
  QHash<QRgb, uchar> indices;
  QList<QRgb> colors;
  for (int y = 0; y < opaque.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
    uchar* to = indexed.scanLine(y);
    for (int x = 0; x < opaque.width(); ++x) {
      auto known = indices.constFind(from[x]);
      if (known == indices.constEnd()) {
        if (colors.size() == 256) return opaque;
        known = indices.insert(from[x], static_cast<uchar>(colors.size()));
        colors.append(from[x]);
      }
      to[x] = *known;
    }
  }
  indexed.setColorTable(colors);
  indexed.setDevicePixelRatio(image.devicePixelRatio());
  return indexed;
}

}  // namespace quorix::gallery
