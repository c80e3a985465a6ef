#include "qt/painting/Pixels.h"

#include <algorithm>
#include <cstring>

namespace quorix::qt::pixels {
namespace {

/// Calls `row` with the first pixel of each row of `part`.
template <class Row>
void eachRow(QImage& image, const QRect& part, Row row) {
  uchar* first = image.scanLine(part.top()) + part.left() * qsizetype{sizeof(QRgb)};
  const qsizetype step = image.bytesPerLine();
  for (int y = 0; y < part.height(); ++y, first += step) {
    row(reinterpret_cast<QRgb*>(first), y);
  }
}

/// `pixel` times `part` of 255, rounded as Qt does.
QRgb times(QRgb pixel, quint32 part) {
  const auto two = [part](quint32 channels) {
    channels *= part;
    return ((channels + ((channels >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
  };
  return two(pixel & 0xff00ff) | two((pixel >> 8) & 0xff00ff) << 8;
}

}  // namespace

void fill(QImage& image, const QRect& part, QRgb color) {
  eachRow(image, part, [&](QRgb* row, int) { std::fill_n(row, part.width(), color); });
}

void copy(const QImage& picture, QImage& onto, QPoint at) {
  const uchar* from = picture.constBits();
  const qsizetype step = picture.bytesPerLine();
  const auto bytes = static_cast<std::size_t>(picture.width()) * sizeof(QRgb);
  eachRow(onto, {at, picture.size()},
          [&](QRgb* row, int y) { std::memcpy(row, from + y * step, bytes); });
}

bool blend(const QImage& picture, QImage& onto, QPoint at) {
  const auto* from = reinterpret_cast<const QRgb*>(picture.constBits());
  const int width = picture.width();
  bool same = true;
  eachRow(onto, {at, picture.size()}, [&](QRgb* row, int y) {
    const QRgb* const ink = from + y * width;
    for (int x = 0; x < width; ++x) {
      if (row[x] == 0) {
        row[x] = ink[x];
      } else if (ink[x] != 0) {
        same = same && qAlpha(row[x]) != 255;
        row[x] = ink[x] + times(row[x], 255 - qAlpha(ink[x]));
      }
    }
  });
  return same;
}

}  // namespace quorix::qt::pixels
