#pragma once

#include <QAbstractAnimation>
#include <QElapsedTimer>
#include <functional>

#include "platform/foundation/Export.h"

namespace quorix::qt {

/// Ticks once for each frame while it runs, in step with the window that is drawn. Main thread.
class QUORIX_EXPORT FrameClock : private QAbstractAnimation {
 public:
  /// Told of the seconds since the last tick; the clock stops when it answers false.
  explicit FrameClock(std::function<bool(double)> tick) : tick_(std::move(tick)) {}

  /// Runs from now on, if it does not yet.
  void start() {
    if (state() == Running) return;
    sinceTick_.start();
    QAbstractAnimation::start();
  }
  void stop() { QAbstractAnimation::stop(); }

 private:
  int duration() const override { return -1; }  // until it is stopped
  void updateCurrentTime(int) override {
    if (state() != Running) return;
    const double seconds = static_cast<double>(sinceTick_.nsecsElapsed()) * 1e-9;
    sinceTick_.start();
    if (!tick_(seconds)) stop();
  }

  std::function<bool(double)> tick_;
  QElapsedTimer sinceTick_;
};

}  // namespace quorix::qt
