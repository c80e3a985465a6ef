#include "qt/painting/FocusRing.h"

#include <QPainter>
#include <cmath>

#include "qt/Conversions.h"

namespace quorix::qt {
void FocusRing::paint(QPainter& painter, const QRectF& frame, graphics::Appearance appearance) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  using Ring = hosting::FocusRing;
  painter.setPen(QPen(toQColor(Ring::color(appearance)), Ring::width));
  constexpr double inset = Ring::width / 2;
  painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), Ring::radius, Ring::radius);
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
