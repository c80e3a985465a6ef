#include "qt/FrameClock.h"

namespace quorix::qt {

void FrameClock::start() {
  if (state() == Running) return;
  sinceTick_.start();
  QAbstractAnimation::start();
}

void FrameClock::updateCurrentTime(int) {
  if (state() != Running) return;
  const double seconds = static_cast<double>(sinceTick_.nsecsElapsed()) * 1e-9;
  sinceTick_.start();
  if (!tick_(seconds)) stop();
}

}  // namespace quorix::qt
