#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QQuickWindow>
#include <cstdio>
#include <functional>

#include "examples/common/StandInPages.h"

namespace quorix::bench {

constexpr char pageAddress[] = "https://modules.quorix.example/page";

/// One page of one colour, from a server in the process.
inline examples::StandInPages& blueServer() {
  static auto* pages = new examples::StandInPages;
  pages->serve("/page", {.body = "<!doctype html><html style='background:#00f'>text"});
  return *pages;
}

/// Runs `open` and prints how many milliseconds it takes to the next frame of `window`, and to the
/// first with the page in it.
inline void timePage(const char* name, QQuickWindow& window, const std::function<void()>& open) {
  QElapsedTimer clock;
  QEventLoop loop;
  qint64 first = -1;
  const auto look = [&] {
    if (first < 0) first = clock.elapsed();
    const QImage frame = window.grabWindow();
    if (frame.pixelColor(frame.rect().center()) == QColor(Qt::blue)) loop.quit();
  };
  QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, look, Qt::QueuedConnection);
  clock.start();
  open();
  loop.exec();
  std::printf("%-12s first frame %4lld ms, page painted %4lld ms\n", name,
              static_cast<long long>(first), static_cast<long long>(clock.elapsed()));
}

}  // namespace quorix::bench
