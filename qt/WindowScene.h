#pragma once

#include <QMargins>
#include <QWindow>
#include <functional>
#include <memory>
#include <utility>

#include "platform/hosting/WindowSession.h"

namespace quorix::qt {

/// Follows what the device covers of a window: the host's margins, or else Qt's from 6.9 on. Main
/// thread.
class SafeAreaWatcher : public QObject {
 public:
  template <class Window>
  SafeAreaWatcher(Window& window, std::function<void(QMargins)> changed)
      : window_(window), changed_(std::move(changed)) {
    window.installEventFilter(this);
    if constexpr (requires { window.safeAreaMargins(); }) {
      own_ = [&window] { return window.safeAreaMargins(); };
      connect(&window, &Window::safeAreaMarginsChanged, this, [this] { changed_(covered()); });
    }
  }

  QMargins covered() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWindow& window_;
  std::function<void(QMargins)> changed_;
  std::function<QMargins()> own_;  ///< Qt's margins
};

/// The session of a toolkit's window. A child of that window; main thread.
class QUORIX_EXPORT WindowScene : public QObject, public hosting::WindowSession {
  Q_OBJECT

 public:
  /// A window of a toolkit.
  struct Toolkit {
    std::function<QWindow*()> window;  ///< null while it is not shown
    std::function<hosting::SheetSession&(WindowScene&, const hosting::Responder* opener)> newSheet;
  };

  /// The scene of `window`, made with the first call.
  static WindowScene& of(QObject& window, const Toolkit& toolkit);
  /// The sheet that takes the input of `window`; null without one.
  static const hosting::Responder* topmostOf(const QObject* window);

 private:
  WindowScene(QObject& window, const Toolkit& toolkit);
  bool isVisible() const override;
  hosting::SheetSession& newSheet(const hosting::Responder* opener) override;
  void focusWindowChanged(QWindow* focused);

  Toolkit toolkit_;
  std::unique_ptr<QObject> safeArea_;  ///< watches it since the latest sheet
};

}  // namespace quorix::qt
