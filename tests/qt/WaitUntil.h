#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>

namespace quorix::testing {

/// Takes turns of the main thread's event loop until `holds()`, and says whether it ever did. The
/// limit is for what is broken, not for what is slow.
template <class Predicate>
[[nodiscard]] bool waitUntil(Predicate holds,
                             std::chrono::milliseconds limit = std::chrono::seconds(20)) {
  QElapsedTimer elapsed;
  elapsed.start();
  QTimer wake;  // for predicates about other threads, whose changes no event of this one tells
  wake.start(1);
  QEventLoop loop;
  while (!holds()) {
    if (elapsed.hasExpired(limit.count())) return false;
    loop.processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

}  // namespace quorix::testing
