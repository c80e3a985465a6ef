#pragma once

#include <QEvent>
#include <QMargins>
#include <QVariant>
#include <QWindow>
#include <functional>
#include <memory>
#include <utility>

#include "platform/hosting/WindowSession.h"

namespace quorix::qt {

/// The property of a window that holds the host's margins, which may be set before a sheet exists.
inline constexpr const char* safeAreaProperty = "quorixSafeArea";

/// Follows what the device covers of a window: the host's margins, or else Qt's from 6.9 on. Main
/// thread.
template <class Window>
class SafeAreaWatcher : public QObject {
 public:
  /// Calls `tell` now and after each change.
  SafeAreaWatcher(Window& window, std::function<void(QMargins)> tell)
      : window_(window), tell_(std::move(tell)) {
    window.installEventFilter(this);
    if constexpr (requires { window.safeAreaMargins(); }) {
      connect(&window, &Window::safeAreaMarginsChanged, this, [this] { tell_(covered()); });
    }
    tell_(covered());
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::DynamicPropertyChange) tell_(covered());
    return false;
  }

 private:
  QMargins covered() const {
    const QVariant said = window_.property(safeAreaProperty);
    if (said.isValid()) return said.value<QMargins>();
    if constexpr (requires { window_.safeAreaMargins(); }) return window_.safeAreaMargins();
    return {};
  }

  Window& window_;
  std::function<void(QMargins)> tell_;
};

/// The session of a toolkit's window. A child of that window; main thread.
class QUORIX_EXPORT HostedWindow : public QObject, public hosting::WindowSession {
  Q_OBJECT

 public:
  /// A window of a toolkit.
  struct Toolkit {
    std::function<QWindow*()> window;  ///< null while it is not shown
    std::function<hosting::SheetSession&(HostedWindow&, const hosting::Responder* opener)> newSheet;
  };

  /// The session of `window`, made with the first call.
  static HostedWindow& of(QObject& window, const Toolkit& toolkit);
  /// The sheet that takes the input of `window`; null without one.
  static const hosting::Responder* topmostOf(const QObject* window);

 private:
  HostedWindow(QObject& window, const Toolkit& toolkit);
  bool isVisible() const override;
  hosting::SheetSession& newSheet(const hosting::Responder* opener) override;
  void focusWindowChanged(QWindow* focused);

  Toolkit toolkit_;
  std::unique_ptr<QObject> safeArea_;  ///< watches it since the latest sheet
};

}  // namespace quorix::qt
