#include "tools/quorix/gallery/Pictures.h"

#include <QBuffer>
#include <QHash>
#include <QPainter>
#include <algorithm>

namespace quorix::gallery {

QImage contactSheet(const std::vector<CaptionedPicture>& pictures, double width) {
  constexpr double gap = 20, captionHeight = 16;  // points
  constexpr double largestSide = 32767;           // pixels
  if (pictures.empty()) return {};
  // From left to right, in a new row if one is full.
  std::vector<QRectF> frames;
  QSizeF page(width, 0);
  QPointF at(gap, gap);
  for (const auto& [picture, caption] : pictures) {
    const QSizeF size = picture.deviceIndependentSize();
    if (at.x() > gap && at.x() + size.width() + gap > width) at = {gap, page.height()};
    frames.emplace_back(at, size);
    at.rx() += size.width() + gap;
    page = page.expandedTo({at.x(), at.y() + size.height() + captionHeight + gap});
  }
  const double scale = pictures.front().picture.devicePixelRatio();
  if (std::max(page.width(), page.height()) * scale > largestSide) return {};
  QImage image((page * scale).toSize(), QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.setDevicePixelRatio(scale);
  image.fill(QColor(0xd9, 0xdc, 0xe1));
  QPainter painter(&image);
  QFont font;
  font.setPixelSize(11);
  painter.setFont(font);
  painter.setPen(QColor(0x3a, 0x3f, 0x47));
  for (std::size_t i = 0; i < frames.size(); ++i) {
    painter.drawImage(frames[i].topLeft(), pictures[i].picture);
    painter.drawText(
        QRectF(frames[i].left(), frames[i].bottom() + 2, frames[i].width(), captionHeight),
        Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(pictures[i].caption));
  }
  return image;
}

QImage withFewColors(const QImage& image) {
  const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
  QHash<QRgb, int> counts;
  for (int y = 0; y < opaque.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
    for (int x = 0; x < opaque.width(); ++x) ++counts[line[x]];
  }
  QList<QRgb> colors = counts.keys();
  std::ranges::sort(colors, std::greater(),
                    [&](QRgb color) { return std::pair(counts[color], color); });
  return opaque.convertToFormat(QImage::Format_Indexed8, colors.mid(0, 256));
}

QByteArray png(const QImage& image, bool smallest) {
  QBuffer buffer;
  image.save(&buffer, "PNG", smallest ? 0 : -1);
  return buffer.data();
}

}  // namespace quorix::gallery
