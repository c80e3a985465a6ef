#pragma once

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <functional>

namespace quorix::bench {

/// Watches a window from a tap on.
class SheetClock {
 public:
  /// Milliseconds since the tap.
  struct Moments {
    double first = 0;  ///< the first frame with the sheet is on its way
    double work = 0;   ///< until then, of the thread's processor time
  };

  /// `isSheet` knows the sheet's item.
  SheetClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isSheet);

  /// `tap` opens the sheet. One that does not come ends the process.
  Moments open(const std::function<void()>& tap);
  /// Whether the sheet's first frame is as its last. Times nothing.
  bool restsAtOnce(const std::function<void()>& tap);
  /// `close` closes it; one that stays ends the process.
  void close(const std::function<void()>& close);

 private:
  void frameIsOut();
  bool isUp() const;
  void untilRest();

  QQuickWindow& window_;
  std::function<bool(const QQuickItem&)> isSheet_;
  Moments start_;
  Moments moments_;
  bool moved_ = false;
  bool looking_ = false;
  QImage seen_;
};

}  // namespace quorix::bench
