#pragma once

#include <QImage>

#include "platform/hosting/FocusRing.h"
#include "qt/Conversions.h"

class QPainter;

namespace quorix::qt {

/// Paints the focus ring.
namespace FocusRing {

/// The ring's frame around an element; points.
inline QRectF frameAround(const layout::Rect& element) {
  return toRect(hosting::FocusRing::around(element));
}

/// Draws the ring within `frame`.
QUORIX_EXPORT void paint(QPainter& painter, const QRectF& frame, graphics::Appearance appearance);

/// The ring for an element of `element`'s size, at `scale` device pixels a point.
QUORIX_EXPORT QImage picture(const layout::Rect& element, graphics::Appearance appearance,
                             double scale);

}  // namespace FocusRing
}  // namespace quorix::qt
