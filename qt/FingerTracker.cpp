#include "qt/FingerTracker.h"

#include <QTouchEvent>

namespace quorix::qt {

std::optional<FingerTracker::Report> FingerTracker::read(const QTouchEvent& event) {
  if (event.type() == QEvent::TouchCancel) {
    if (!finger_) return std::nullopt;
    forget();
    return Report{Phase::cancelled, {}};
  }
  for (const QEventPoint& point : event.points()) {
    if (!finger_ && point.state() == QEventPoint::Pressed) {
      finger_ = point.id();
      return Report{Phase::pressed, point.position()};
    }
    if (finger_ != point.id()) continue;
    if (point.state() == QEventPoint::Released) {
      forget();
      return Report{Phase::released, point.position()};
    }
    return Report{Phase::moved, point.position()};
  }
  return std::nullopt;
}

}  // namespace quorix::qt
