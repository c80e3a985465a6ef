#pragma once

#include <QtCore/qnamespace.h>
#include <QRectF>

#include "platform/foundation/Export.h"
#include "platform/hosting/Responder.h"
#include "platform/hosting/ViewFocus.h"

class QEvent;
class QKeyEvent;
class QWheelEvent;

namespace quorix::qt {

inline layout::Point toPoint(QPointF point) { return {point.x(), point.y()}; }
inline QPointF toPoint(layout::Point point) { return {point.x, point.y}; }
inline QRectF toRect(const layout::Rect& rect) {
  return {rect.left(), rect.top(), rect.size.width, rect.size.height};
}

QUORIX_EXPORT hosting::KeyEvent toKeyEvent(const QKeyEvent& event);
hosting::ScrollEvent toScrollEvent(const QWheelEvent& event);
QUORIX_EXPORT hosting::ViewFocus::Cause causeOf(Qt::FocusReason reason);

/// Passes an event of the pointer on, and accepts it if `responder` takes it. False when it is an
/// event of another kind. The action may delete the surface.
bool passPointer(QEvent& event, hosting::Responder& responder);

}  // namespace quorix::qt
