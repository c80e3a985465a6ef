#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QTcpServer>
#include <chrono>
#include <functional>

namespace quorix::bench {

/// Watches a window from a tap on: after how many milliseconds its first frame with an overlay is
/// on its way, and after how many the first one with the engine's view in it. Made before the
/// engine starts, whose pages neither come nor fail: an overlay that learns of a failure before its
/// first frame shows a sentence instead of the page.
class OverlayClock {
 public:
  struct Moments {
    double overlay = 0;
    double page = 0;
  };

  /// `isOverlay` knows the overlay's item.
  OverlayClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isOverlay);

  /// `tap` opens an overlay. A page that is not there within a minute ends the process.
  Moments open(const std::function<void()>& tap);
  /// `close` closes it; returns when it is gone and the window has come to rest.
  void close(const std::function<void()>& close);

  /// Prints the moments of a cold and of a warm opening as JSON.
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
