#include "tools/quorix/gallery/FewColors.h"

#include <QHash>
#include <algorithm>
#include <cstdlib>

namespace quorix::gallery {
namespace {

constexpr int tableSize = 256;

int distance(QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
         std::abs(qBlue(one) - qBlue(other));
}

/// All colors of `image`, the most frequent first.
QList<QRgb> colorsByFrequency(const QImage& image) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) ++counts[line[x]];
  }
  QList<QRgb> colors = counts.keys();
  std::sort(colors.begin(), colors.end(), [&](QRgb one, QRgb other) {
    const int first = counts[one], second = counts[other];
    return first != second ? first > second : one < other;
  });
  return colors;
}

}  // namespace

QImage withFewColors(const QImage& image) {
  const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
  const QList<QRgb> colors = colorsByFrequency(opaque);
  const QList<QRgb> table = colors.mid(0, tableSize);
  QHash<QRgb, uchar> indices;
  for (const QRgb color : colors) {
    const auto nearest = std::min_element(table.begin(), table.end(), [&](QRgb one, QRgb other) {
      return distance(one, color) < distance(other, color);
    });
    indices.insert(color, static_cast<uchar>(nearest - table.begin()));
  }
  QImage indexed(opaque.size(), QImage::Format_Indexed8);
  for (int y = 0; y < opaque.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
    uchar* to = indexed.scanLine(y);
    for (int x = 0; x < opaque.width(); ++x) to[x] = indices[from[x]];
  }
  indexed.setColorTable(table);
  indexed.setDevicePixelRatio(image.devicePixelRatio());
  return indexed;
}

}  // namespace quorix::gallery
