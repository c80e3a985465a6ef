#pragma once

#include <QQuickWindow>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace quorix::bench {

/// A score of 0.82, 4.99 euros, 2.99 with the discount.
inline constexpr char kToken[] =
    "eyJhbGciOiJIUzI1NiIsInR5cCI6IkpXVCJ9."
    "eyJkYXRhIjp7InNjb3JlIjowLjgyLCJmZWVfY3VycmVuY3kiOiJFVVIiLCJiYXNlX2ZlZV9hbW91bnQiOjQ5OSwiZGlzY2"
    "91bnRlZF9mZWVfYW1vdW50IjoyOTl9fQ.Pl-3x4uXquglvBix9LCdELzY2acgiYpNngoSk005HVQ";

/// Prints the steady clock's nanoseconds at the window's first frame, and ends the process at once,
/// so that no shutdown is measured.
inline void quitAtFirstFrame(QQuickWindow& window) {
  QObject::connect(
      &window, &QQuickWindow::frameSwapped, &window,
      [] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%lld\n",
                    static_cast<long long>(
                        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
        std::fflush(stdout);
        std::_Exit(0);
      },
      Qt::DirectConnection);
}

}  // namespace quorix::bench
