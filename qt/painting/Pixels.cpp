#include "qt/painting/Pixels.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

#include "qt/Conversions.h"

namespace quorix::qt {

InkPicture InkPicture::cropped(graphics::RGBA ground) const {
  const bool opaque = ground.alpha == 255;
  const QRgb bare = opaque ? toQColor(ground).rgb() : 0;
  const auto isInk = [&](QRgb pixel) { return pixel != bare; };
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const auto* end = line + image.width();
    const auto* first = std::find_if(line, end, isInk);
    if (first == end) continue;
    const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isInk);
    ink |= QRect(static_cast<int>(first - line), y, static_cast<int>(last.base() - first), 1);
  }
  if (ink.isEmpty()) return {};
  QImage cut = image.copy(ink);
  // Drawing an image without an alpha channel is copying it.
  if (opaque) cut.reinterpretAsFormat(QImage::Format_RGB32);
  return {std::move(cut), offset + ink.topLeft()};
}

namespace pixels {
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

}  // namespace pixels
}  // namespace quorix::qt
