#pragma once

#include <QMargins>
#include <QWindow>
#include <functional>
#include <utility>

namespace quorix::qt {

/// Follows what the device covers of a window: the host's margins, or else Qt's from 6.9 on.
/// Belongs to the window; main thread.
class SafeAreaWatcher : public QObject {
 public:
  template <class Window>
  SafeAreaWatcher(Window& window, std::function<void()> changed)
      : QObject(&window), window_(window), changed_(std::move(changed)) {
    window.installEventFilter(this);
    if constexpr (requires { window.safeAreaMargins(); }) {
      own_ = [&window] { return window.safeAreaMargins(); };
      connect(&window, &Window::safeAreaMarginsChanged, this, [this] { changed_(); });
    }
  }

  QMargins covered() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWindow& window_;
  std::function<void()> changed_;
  std::function<QMargins()> own_;  ///< Qt's margins
};

}  // namespace quorix::qt
