#pragma once

#include <QImage>
#include <QRectF>

#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"

class QPainter;

namespace quorix::qt {

/// The ring around the element that has the keyboard focus, a little outside of it.
namespace FocusRing {

/// What the ring covers, around an element at `element`; points.
QUORIX_EXPORT QRectF frameAround(const layout::Rect& element);

/// Draws the ring within `frame`.
QUORIX_EXPORT void paint(QPainter& painter, const QRectF& frame, graphics::Appearance appearance);

/// The ring for an element of `element`'s size, at `scale` device pixels a point.
QUORIX_EXPORT QImage picture(const layout::Rect& element, graphics::Appearance appearance,
                             double scale);

}  // namespace FocusRing
}  // namespace quorix::qt
