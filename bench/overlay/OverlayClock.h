#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QTcpServer>
#include <chrono>
#include <functional>

namespace quorix::bench {

/// Watches a window after a tap. Measures the milliseconds until the first frame with an overlay,
/// and until the first frame with the engine's view in it. Make it before the engine starts: its
/// silent proxy keeps pages from loading or failing. After a failure, an overlay would show a
/// sentence instead of the page.
class OverlayClock {
 public:
  struct Moments {
    double overlay = 0;
    double page = 0;
  };

  /// `isOverlay` returns whether an item is the overlay's.
  OverlayClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isOverlay);

  /// `tap` opens an overlay. Ends the process if the page is not visible after a minute.
  Moments open(const std::function<void()>& tap);
  /// `close` closes it. Returns when the overlay is gone and the window is at rest.
  void close(const std::function<void()>& close);

  /// Prints the times of a cold and a warm opening as JSON.
  static void print(const Moments& cold, const Moments& warm);

 private:
  using Clock = std::chrono::steady_clock;
  void frameIsOut();

  QQuickWindow& window_;
  QTcpServer silentProxy_;
  std::function<bool(const QQuickItem&)> isOverlay_;
  Clock::time_point tapped_;
  Moments moments_;
};

}  // namespace quorix::bench
