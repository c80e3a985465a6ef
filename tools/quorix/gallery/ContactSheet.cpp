#include "tools/quorix/gallery/ContactSheet.h"

#include <QPainter>
#include <algorithm>

namespace quorix::gallery {
namespace {

// Points.
constexpr double gap = 20;
constexpr double captionHeight = 16;
constexpr double largestSide = 32767;  // pixels

const QColor ground(0xd9, 0xdc, 0xe1);
const QColor ink(0x3a, 0x3f, 0x47);

/// The position of each picture: from left to right, in a new row if one is full.
std::vector<QPointF> places(const std::vector<ContactSheet::Entry>& entries, double width,
                            QSizeF& page) {
  std::vector<QPointF> result;
  QPointF at(gap, gap);
  double rowHeight = 0;
  page = {width, 0};
  for (const ContactSheet::Entry& entry : entries) {
    const QSizeF size = entry.picture.deviceIndependentSize();
    if (at.x() > gap && at.x() + size.width() + gap > width) {
      at = {gap, at.y() + rowHeight + captionHeight + gap};
      rowHeight = 0;
    }
    result.push_back(at);
    rowHeight = std::max(rowHeight, size.height());
    at.rx() += size.width() + gap;
    page = {std::max(page.width(), at.x()), at.y() + rowHeight + captionHeight + gap};
  }
  return result;
}

}  // namespace

QImage ContactSheet::paint(const std::vector<Entry>& entries, double width) {
  if (entries.empty()) return {};
  QSizeF page;
  const std::vector<QPointF> at = places(entries, width, page);
  const double scale = entries.front().picture.devicePixelRatio();
  if (std::max(page.width(), page.height()) * scale > largestSide) return {};
  QImage image((page * scale).toSize(), QImage::Format_RGB32);
  if (image.isNull()) return {};
  image.setDevicePixelRatio(scale);
  image.fill(ground);
  QPainter painter(&image);
  QFont font;
  font.setPixelSize(11);
  painter.setFont(font);
  painter.setPen(ink);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const QSizeF size = entries[i].picture.deviceIndependentSize();
    painter.drawImage(at[i], entries[i].picture);
    painter.drawText(QRectF(at[i].x(), at[i].y() + size.height() + 2, size.width(), captionHeight),
                     Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(entries[i].caption));
  }
  return image;
}

}  // namespace quorix::gallery
