#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>

namespace quorix::testing {

/// Runs the main thread's event loop until `holds()` is true, and returns whether it was. The time
/// limit is for failures, not for slow machines.
template <class Predicate>
[[nodiscard]] bool waitUntil(Predicate holds,
                             std::chrono::milliseconds limit = std::chrono::seconds(20)) {
  QElapsedTimer elapsed;
  elapsed.start();
  QTimer wake;  // changes of other threads cause no event in this one
  wake.start(1);
  QEventLoop loop;
  while (!holds()) {
    if (elapsed.hasExpired(limit.count())) return false;
    loop.processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

}  // namespace quorix::testing
