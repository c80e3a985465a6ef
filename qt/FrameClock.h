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
  void start();
  void stop() { QAbstractAnimation::stop(); }

 private:
  int duration() const override { return -1; }  // until it is stopped
  void updateCurrentTime(int) override;

  std::function<bool(double)> tick_;
  QElapsedTimer sinceTick_;
};

}  // namespace quorix::qt
