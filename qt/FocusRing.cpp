#include "qt/FocusRing.h"

#include <QPainter>
#include <cmath>

namespace quorix::qt {
namespace {

constexpr double kGap = 2;
constexpr double kWidth = 2;
constexpr double kRadius = 5;

// Both stand out at more than 5:1 against a white and a black page, three being what is asked for.
QColor colorFor(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? QColor(0x8a, 0xb4, 0xf8)
                                                  : QColor(0x0b, 0x57, 0xd0);
}

}  // namespace

QRectF FocusRing::frameAround(const layout::Rect& element) {
  constexpr double outset = kGap + kWidth;
  return QRectF(element.left(), element.top(), element.size.width, element.size.height)
      .adjusted(-outset, -outset, outset, outset);
}

void FocusRing::paint(QPainter& painter, const QRectF& frame, graphics::Appearance appearance) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colorFor(appearance), kWidth));
  constexpr double inset = kWidth / 2;
  painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
  painter.restore();
}

QImage FocusRing::picture(const layout::Rect& element, graphics::Appearance appearance,
                          double scale) {
  const QSizeF points = frameAround(element).size();
  QImage image(static_cast<int>(std::ceil(points.width() * scale)),
               static_cast<int>(std::ceil(points.height() * scale)),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  paint(painter, QRectF(QPointF(), points), appearance);
  return image;
}

}  // namespace quorix::qt
