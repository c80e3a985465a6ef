#include "bench/overlay/OverlayClock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace quorix::bench {
namespace {

constexpr const char* kFlags = "QTWEBENGINE_CHROMIUM_FLAGS";
constexpr int kPatience = 60'000;  // milliseconds

bool contains(const QQuickItem& item, const std::function<bool(const QQuickItem&)>& matches) {
  const auto children = item.childItems();
  return std::any_of(children.begin(), children.end(), [&](const QQuickItem* child) {
    return matches(*child) || contains(*child, matches);
  });
}

bool isPage(const QQuickItem& item) { return item.inherits("QQuickWebEngineView"); }

template <class Condition>
void waitFor(Condition condition) {
  QElapsedTimer waited;
  waited.start();
  while (!condition()) {
    if (waited.elapsed() > kPatience) {
      std::fputs("the overlay did not come or go\n", stderr);
      std::_Exit(1);
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  }
}

}  // namespace

OverlayClock::OverlayClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isOverlay)
    : window_(window), isOverlay_(std::move(isOverlay)) {
  silentProxy_.listen(QHostAddress::LocalHost);
  silentProxy_.pauseAccepting();
  qputenv(kFlags, qgetenv(kFlags) + " --proxy-server=http://127.0.0.1:" +
                      QByteArray::number(silentProxy_.serverPort()));
  QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { frameIsOut(); });
}

void OverlayClock::frameIsOut() {
  const auto now = [this] {
    return std::chrono::duration<double, std::milli>(Clock::now() - tapped_).count();
  };
  const QQuickItem& content = *window_.contentItem();
  if (moments_.overlay == 0 && contains(content, isOverlay_)) moments_.overlay = now();
  if (moments_.page == 0 && contains(content, isPage)) moments_.page = now();
}

OverlayClock::Moments OverlayClock::open(const std::function<void()>& tap) {
  moments_ = {};
  tapped_ = Clock::now();
  tap();
  waitFor([this] { return moments_.overlay > 0 && moments_.page > 0; });
  return moments_;
}

void OverlayClock::close(const std::function<void()>& close) {
  close();
  waitFor([this] { return !contains(*window_.contentItem(), isOverlay_); });
  QEventLoop rest;
  QTimer::singleShot(1000, &rest, &QEventLoop::quit);
  rest.exec();
}

void OverlayClock::print(const Moments& cold, const Moments& warm) {
  std::printf(
      "{\"cold\": {\"overlay\": %.2f, \"page\": %.2f}, \"warm\": {\"overlay\": %.2f, \"page\": "
      "%.2f}}\n",
      cold.overlay, cold.page, warm.overlay, warm.page);
}

}  // namespace quorix::bench
