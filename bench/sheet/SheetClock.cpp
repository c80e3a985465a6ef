#include "bench/sheet/SheetClock.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace quorix::bench {
namespace {

/// Milliseconds without a frame that make a rest: motion wants the next one within 16.
constexpr int kRest = 100;

double milliseconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

bool contains(const QQuickItem& item, const std::function<bool(const QQuickItem&)>& matches) {
  const auto children = item.childItems();
  return std::any_of(children.begin(), children.end(), [&](const QQuickItem* child) {
    return child->isVisible() && (matches(*child) || contains(*child, matches));
  });
}

}  // namespace

SheetClock::SheetClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isSheet)
    : window_(window), isSheet_(std::move(isSheet)) {
  QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { frameIsOut(); });
}

bool SheetClock::isUp() const { return contains(*window_.contentItem(), isSheet_); }

void SheetClock::frameIsOut() {
  moved_ = true;
  if (!isUp()) return;
  if (moments_.first == 0) {
    moments_.first = milliseconds(CLOCK_MONOTONIC) - start_.first;
    moments_.work = milliseconds(CLOCK_THREAD_CPUTIME_ID) - start_.work;
    if (looking_) seen_ = window_.grabWindow();
  }
}

SheetClock::Moments SheetClock::open(const std::function<void()>& tap) {
  moments_ = {};
  start_ = {milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID)};
  tap();
  untilRest();
  if (moments_.first > 0) return moments_;
  std::fputs("the sheet did not come\n", stderr);
  std::_Exit(1);
}

bool SheetClock::restsAtOnce(const std::function<void()>& tap) {
  looking_ = true;
  open(tap);
  looking_ = false;
  return seen_ == window_.grabWindow();
}

void SheetClock::close(const std::function<void()>& close) {
  close();
  untilRest();
  if (!isUp()) return;
  std::fputs("the sheet did not go\n", stderr);
  std::_Exit(1);
}

void SheetClock::untilRest() {
  do {
    moved_ = false;
    QEventLoop loop;
    QTimer::singleShot(kRest, &loop, &QEventLoop::quit);
    loop.exec();
  } while (moved_);
}

}  // namespace quorix::bench
